// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace velmora
{

class ServicesConfig;

/// The built-in help, and the program's pages on the web: "site/manual" and "site/home" of the
/// configuration, opened in the default browser. In the manual's address "%1" stands for the place
/// from which help is asked. A browser that cannot be started is a usage event and nothing else.
/// GUI thread.
class HelpPages : public QObject
{
    Q_OBJECT
public:
    /// @p services must outlive the object; dialogs are shown above @p window, the parent, whose
    /// actions the help lists with those of @p editor.
    HelpPages(const ServicesConfig &services, const QWidget &editor, QWidget *window);

    /// The place that stands for a page of the main window.
    static QString placeOfPage(int page);
    /// The manual where it has an address, otherwise the built-in help.
    void showManual(const QString &place);
    void showShortcuts(const QString &place);
    void showHomePage();

private:
    const ServicesConfig &m_services;
    const QWidget &m_editor;
    QWidget *m_window;
};

} // namespace velmora
