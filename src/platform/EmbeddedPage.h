// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>
#include <QWidget>

#include <memory>

namespace velmora
{

/// A widget that shows a web page within the program. GUI thread.
class EmbeddedPage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    virtual void navigate(const QUrl &address) = 0;
    /// Whether the page is a window of the system, which a translucent window does not show.
    virtual bool needsOpaqueWindow() const { return false; }

signals:
    void titleChanged(QString title);
    void urlChanged(QString address); ///< A page has been reached.
};

/// Null where the program was built without a component that shows web pages.
std::unique_ptr<EmbeddedPage> createEmbeddedPage();

} // namespace velmora
