// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/BurnPlan.h"

#include "platform/PlatformLog.h"
#include "platform/linux/BurnDrive.h"
#include "platform/linux/DiscContent.h"

#include <QByteArray>

#include <libburn/libburn.h>

namespace velmora
{

using namespace burn;

namespace
{

constexpr int kQuiet = 2; // Flag of burn_write_opts_auto_write_type: no error messages.

} // namespace

BurnPlan::BurnPlan(const BurnDrive &drive, burn_source *source)
    : m_disc(burn_disc_create()), m_session(burn_session_create()), m_track(burn_track_create()),
      m_options(burn_write_opts_new(drive.handle()))
{
    burn_disc_add_session(m_disc, m_session, BURN_POS_END);
    burn_session_add_track(m_session, m_track, BURN_POS_END);
    burn_track_define_data(m_track, 0, 0, 1, BURN_MODE1);
    burn_track_set_source(m_track, source);
    burn_write_opts_set_underrun_proof(m_options, 1);
}

BurnPlan::~BurnPlan()
{
    burn_write_opts_free(m_options);
    burn_track_free(m_track);
    burn_session_free(m_session);
    burn_disc_free(m_disc);
}

bool BurnPlan::prepare(bool finalize, const DiscContent &content)
{
    if (content.overwritable) {
        const qint64 start = content.media.blank ? 0 : qint64(content.newSession) * kDiscBlock;
        burn_write_opts_set_start_byte(m_options, start);
        return chooseWriteType(0); // Such discs have no sessions that could stay open.
    }
    if (!finalize) {
        burn_write_opts_set_multi(m_options, 1);
        if (chooseWriteType(kQuiet))
            return true;
        burn_write_opts_set_multi(m_options, 0);
        qCInfo(lcPlatform) << "This disc cannot be left open; it is closed after writing.";
    }
    return chooseWriteType(0);
}

bool BurnPlan::chooseWriteType(int flag)
{
    QByteArray reasons(BURN_REASONS_LEN, '\0');
    const auto type = burn_write_opts_auto_write_type(m_options, m_disc, reasons.data(), flag);
    m_reason = QString::fromUtf8(reasons.constData());
    return type != BURN_WRITE_NONE;
}

} // namespace velmora
