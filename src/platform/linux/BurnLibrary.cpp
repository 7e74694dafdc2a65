// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/BurnLibrary.h"

#include "platform/PlatformLog.h"

#include <QByteArray>

#include <libburn/libburn.h>
#include <libisofs/libisofs.h>

#include <algorithm>
#include <array>
#include <mutex>

namespace velmora
{

using namespace burn;

namespace
{

std::mutex s_mutex;

/// The libraries take their constant texts as plain char pointers.
char *text(const char *literal)
{
    return const_cast<char *>(literal);
}

// Codes of libburn's messages, from its libdax_msgs.h.
constexpr int kWriteThreadEnded = 0x00020178;
constexpr std::array<int, 7> kWriteRefusals = {
    0x00020102, // another operation is going on
    0x00020113, // drive not asked for its capabilities yet
    0x00020139, // unsuitable parameters
    0x00020146, // a drive that is none
    0x00020168, // not formatted
    0x0002017c, // no write type
    0x00020181, // a file that is read only
};

bool reaches(const char *severity, const char *limit)
{
    int number = 0;
    int limitNumber = 0;
    burn_text_to_sev(text(severity), &number, 0);
    burn_text_to_sev(text(limit), &limitNumber, 0);
    return number >= limitNumber;
}

bool logMessage(const char *library, const char *severity, const char *message)
{
    const bool error = reaches(severity, "SORRY");
    if (error)
        qCWarning(lcPlatform).noquote() << library << severity << QString::fromUtf8(message);
    else if (reaches(severity, "NOTE"))
        qCDebug(lcPlatform).noquote() << library << severity << QString::fromUtf8(message);
    return error;
}

} // namespace

BurnLibrary::BurnLibrary()
{
    s_mutex.lock();
    m_ready = burn_initialize() > 0;
    if (!m_ready || iso_init() < 0) {
        qCWarning(lcPlatform) << "The disc burning libraries cannot be started.";
        if (m_ready)
            burn_finish();
        m_ready = false;
        return;
    }
    iso_set_local_charset(text("UTF-8"), 0);
    // An unreadable piece of a file ends the image; it is not replaced by zeros.
    iso_set_abort_severity(text("SORRY"));
    iso_set_msgs_severities(text("NOTE"), text("NEVER"), text(""));
    burn_msgs_set_severities(text("DEBUG"), text("NEVER"), text(""));
}

BurnLibrary::~BurnLibrary()
{
    if (m_ready) {
        logMessages();
        iso_finish();
        burn_finish();
    }
    s_mutex.unlock();
}

BurnLibrary::Messages BurnLibrary::logMessages()
{
    Messages messages;
    int code = 0;
    int origin = 0;
    QByteArray message(BURN_MSGS_MESSAGE_LEN, '\0');
    char severity[80];
    static_assert(ISO_MSGS_MESSAGE_LEN <= BURN_MSGS_MESSAGE_LEN, "one buffer serves both");
    while (burn_msgs_obtain(text("ALL"), &code, message.data(), &origin, severity) > 0) {
        messages.errors |= logMessage("libburn", severity, message.constData());
        messages.writeEnded |= code == kWriteThreadEnded;
        messages.writeRefused |= std::count(kWriteRefusals.begin(), kWriteRefusals.end(), code) > 0;
    }
    while (iso_obtain_msgs(text("ALL"), &code, &origin, message.data(), severity) > 0)
        messages.errors |= logMessage("libisofs", severity, message.constData());
    return messages;
}

} // namespace velmora
