// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EmbeddedPage.h"

namespace velmora
{

std::unique_ptr<EmbeddedPage> createEmbeddedPage()
{
    return nullptr;
}

} // namespace velmora
