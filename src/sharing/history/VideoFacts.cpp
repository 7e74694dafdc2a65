// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/VideoFacts.h"

#include <QFileInfo>

namespace velmora
{

VideoFacts VideoFacts::look(const QString &fileName)
{
    VideoFacts facts;
    facts.known = true;
    const QFileInfo file(fileName);
    facts.exists = file.isFile();
    if (facts.exists) {
        facts.date = file.lastModified();
        facts.size = file.size();
    }
    return facts;
}

} // namespace velmora
