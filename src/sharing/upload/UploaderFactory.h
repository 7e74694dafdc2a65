// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseOauth2Uploader.h"

namespace velmora
{

/// The uploader of the service that @p context is about; null for any other key than "youtube",
/// "googledrive" and "dropbox".
std::unique_ptr<BaseUploader> createUploader(const UploadContext &context);

} // namespace velmora
