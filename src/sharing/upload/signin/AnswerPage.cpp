// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/signin/AnswerPage.h"

#include "sharing/SharingLog.h"

#include <QCoreApplication>
#include <QFile>

// Q_INIT_RESOURCE declares a function, which must not land in a namespace.
static void initialiseSharingResources()
{
    Q_INIT_RESOURCE(sharing);
}

namespace velmora
{

namespace
{

QByteArray readResource(const QString &name, const char *complaint)
{
    QFile file(name);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    qCWarning(lcSharing) << complaint;
    return {};
}

QString translated(const char *text)
{
    return QCoreApplication::translate("AnswerPage", text).toHtmlEscaped();
}

} // namespace

AnswerPage::AnswerPage()
{
    initialiseSharingResources();
    m_template =
        QString::fromUtf8(readResource(QStringLiteral(":/oauth2_answer_template.html"),
                                       "Failed to read template of html answer from resources"));
}

QString AnswerPage::success() const
{
    return build(QStringLiteral(":/images/images/oauth2_connected.png"),
                 translated(QT_TRANSLATE_NOOP("AnswerPage", "Service has been connected")),
                 translated(QT_TRANSLATE_NOOP("AnswerPage", "successfully")));
}

QString AnswerPage::failure() const
{
    return build(QStringLiteral(":/images/images/oauth2_not_connected.png"),
                 translated(QT_TRANSLATE_NOOP("AnswerPage", "Service has not been")),
                 translated(QT_TRANSLATE_NOOP("AnswerPage", "connected")));
}

QString AnswerPage::build(const QString &image, const QString &first, const QString &second) const
{
    const QByteArray png = readResource(image, "Failed open img for html");
    return m_template.arg(QString::fromLatin1(png.toBase64()), first, second,
                          translated(QT_TRANSLATE_NOOP("AnswerPage", "You can close this page")));
}

} // namespace velmora
