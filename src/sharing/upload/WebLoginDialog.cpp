// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/WebLoginDialog.h"

#include "sharing/SharingLog.h"

#include <QVBoxLayout>

namespace velmora
{

WebLoginDialog::WebLoginDialog(std::unique_ptr<EmbeddedPage> page, QWidget *parent)
    : CorDialog(parent), m_page(page.release())
{
    setObjectName(QStringLiteral("webLoginDialog"));
    setWindowTitle(tr("Sign in"));
    if (m_page->needsOpaqueWindow())
        setAttribute(Qt::WA_TranslucentBackground, false);
    m_page->setParent(content());
    m_page->setObjectName(QStringLiteral("webView"));
    m_page->setAccessibleName(tr("Sign-in page of the service"));
    auto *layout = new QVBoxLayout(content());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_page);
    m_page->setMinimumSize(520, 640);
    connect(m_page, &EmbeddedPage::titleChanged, this, &WebLoginDialog::on_webView_titleChanged);
    connect(m_page, &EmbeddedPage::urlChanged, this, &WebLoginDialog::on_webView_urlChanged);
}

void WebLoginDialog::navigate(const QUrl &address)
{
    qCInfo(lcSharing).noquote() << "Navigate to" << address.toString();
    m_page->navigate(address);
}

void WebLoginDialog::on_webView_titleChanged(QString title)
{
    static const QString mark = QStringLiteral("Success code=");
    const int position = title.indexOf(mark);
    if (position < 0) {
        qCInfo(lcSharing).noquote() << "New title is:" << title;
        return;
    }
    const QString code = title.mid(position + mark.size());
    // The log's writer masks the code in the title, which it cannot in this line.
    qCInfo(lcSharing).noquote() << "New title is:" << title;
    qCInfo(lcSharing) << "auth code = ***";
    finishWith(code);
}

void WebLoginDialog::on_webView_urlChanged(QString arg1)
{
    qCInfo(lcSharing).noquote() << "New url is:" << arg1;
    if (!arg1.contains(QLatin1String("authorize_submit")))
        return;
    qCInfo(lcSharing) << "AUTHORIZE SUBMIT [OK]";
    finishWith(QString());
}

void WebLoginDialog::finishWith(const QString &code)
{
    if (m_decided)
        return;
    m_decided = true;
    accept();
    emit authenticated(code);
}

void WebLoginDialog::done(int result)
{
    const bool undecided = !m_decided;
    m_decided = true;
    // Hidden first: whoever hears of it may show a dialog of its own.
    CorDialog::done(result);
    if (undecided)
        emit failed(tr("Authorization error"));
}

} // namespace velmora
