// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"
#include "platform/EmbeddedPage.h"

#include <memory>

namespace velmora
{

/// Shows a sign-in page within the program and notices how the sign-in ends. GUI thread.
class WebLoginDialog : public CorDialog
{
    Q_OBJECT
public:
    explicit WebLoginDialog(std::unique_ptr<EmbeddedPage> page, QWidget *parent = nullptr);

    void navigate(const QUrl &address);
    void done(int result) override;

public slots:
    void on_webView_titleChanged(QString title);
    void on_webView_urlChanged(QString arg1);

signals:
    /// The dialog was closed by it. @p code is empty when the code goes to the loopback port
    /// instead.
    void authenticated(QString code);
    void failed(QString error); ///< The dialog was closed before that.

private:
    void finishWith(const QString &code);

    EmbeddedPage *m_page;
    bool m_decided = false;
};

} // namespace velmora
