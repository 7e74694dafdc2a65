// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace burn
{
struct burn_disc;
struct burn_session;
struct burn_source;
struct burn_track;
struct burn_write_opts;
} // namespace burn

namespace velmora
{

class BurnDrive;
struct DiscContent;

/// What libburn needs to know about one write: a session with one track from a source, and options
/// that suit drive and disc.
class BurnPlan
{
public:
    BurnPlan(const BurnDrive &drive, burn::burn_source *source);
    ~BurnPlan();
    BurnPlan(const BurnPlan &) = delete;
    BurnPlan &operator=(const BurnPlan &) = delete;

    /// Chooses the way of writing. A disc that cannot be left open is closed, with a log line.
    /// False when drive and disc offer no way.
    bool prepare(bool finalize, const DiscContent &content);
    QString reason() const { return m_reason; } ///< After prepare() failed.

    burn::burn_write_opts *options() const { return m_options; }
    burn::burn_disc *disc() const { return m_disc; }

private:
    bool chooseWriteType(int flag);

    burn::burn_disc *m_disc;
    burn::burn_session *m_session;
    burn::burn_track *m_track;
    burn::burn_write_opts *m_options;
    QString m_reason;
};

} // namespace velmora
