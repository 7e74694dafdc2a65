// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QNetworkReply;

namespace velmora
{

/// Aborts a reply that makes no progress, or whose answer is larger than any that a service has
/// reason to send. A child of the reply.
class ReplyGuard : public QObject
{
    Q_OBJECT
public:
    enum class Verdict { Good, Stalled, TooLarge };

    ReplyGuard(QNetworkReply *reply, int stallMs);

    /// What ended the reply of a ServiceNetwork, as far as the guard knows.
    static Verdict verdict(const QNetworkReply *reply);

private:
    void end(Verdict verdict);
    void checkSize();

    QNetworkReply *m_reply;
    QTimer m_stall;
    Verdict m_verdict = Verdict::Good;
};

} // namespace velmora
