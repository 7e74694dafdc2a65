// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseUploader.h"
#include "sharing/upload/UploadContext.h"

#include <memory>

namespace velmora
{

/// The uploader of the service that @p context is about; null for any other key than "youtube",
/// "googledrive" and "dropbox".
std::unique_ptr<BaseUploader> createUploader(const UploadContext &context);
/// Why this copy of the program cannot upload at all, as a text for the user; empty if it can.
QString uploadHindrance();

} // namespace velmora
