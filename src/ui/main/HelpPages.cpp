// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/HelpPages.h"

#include "app/ServicesConfig.h"
#include "chrome/MessageDialog.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"
#include "ui/main/HelpDialog.h"
#include "ui/main/MainView.h"

#include <QAction>
#include <QDesktopServices>
#include <QUrl>
#include <QWidget>

namespace velmora
{

namespace
{

void browse(const QString &address, const QString &word)
{
    if (QDesktopServices::openUrl(QUrl(address)))
        return;
    qCWarning(lcUi).noquote() << "Cannot open in a browser:" << address;
    MetricSender::instance().record(QStringLiteral("err0"), word);
}

} // namespace

HelpPages::HelpPages(const ServicesConfig &services, const QWidget &editor, QWidget *window)
    : QObject(window), m_services(services), m_editor(editor), m_window(window)
{
}

QString HelpPages::placeOfPage(int page)
{
    switch (page) {
    case MainView::Start:
        return QStringLiteral("help_splash");
    case MainView::History:
        return QStringLiteral("help_history");
    default:
        return QStringLiteral("help_main");
    }
}

void HelpPages::showManual(const QString &place)
{
    QString address = m_services.value(QStringLiteral("site/manual"));
    if (address.isEmpty()) {
        showShortcuts(place);
        return;
    }
    address.replace(QLatin1String("%1"), place);
    browse(address, place);
}

void HelpPages::showShortcuts(const QString &place)
{
    const bool hasManual = m_services.isConfigured(QStringLiteral("site/manual"));
    HelpDialog dialog(m_window->actions(), m_editor.findChildren<QAction *>(), hasManual, m_window);
    connect(&dialog, &HelpDialog::manualClicked, this, [this, place] { showManual(place); });
    dialog.exec();
}

void HelpPages::showHomePage()
{
    const QString address = m_services.value(QStringLiteral("site/home"));
    if (address.isEmpty())
        MessageDialog::inform(m_window, tr("Home page"),
                              tr("No home page is set up in this copy of the program."));
    else
        browse(address, QStringLiteral("websiate_url"));
}

} // namespace velmora
