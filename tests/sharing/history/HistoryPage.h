// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/history/HistoryFixture.h"
#include "sharing/history/HistoryHeader.h"
#include "sharing/history/HistoryListView.h"
#include "sharing/history/HistoryRemoval.h"
#include "sharing/history/HistoryRowWidget.h"
#include "sharing/history/HistoryWidget.h"
#include "sharing/upload/UploadController.h"

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

namespace velmora
{

/// The page of the history with three videos, for tests of it.
class HistoryPage : public QObject
{
protected:
    void begin()
    {
        m_history = std::make_unique<HistoryFixture>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("data"))); // Of the trash.
        m_history->add("old.mp4", 3 * 1048576, QDate(2026, 1, 2), QStringLiteral("Old\ntitle"));
        m_history->add("gone.mp4", -1, {});
        m_history->add("new.mp4", 250 * 1048576LL, QDate(2026, 3, 4));
        QVERIFY(m_history->store.save());
        show();
    }
    void end()
    {
        m_widget.reset();
        m_uploads.reset();
        m_stack.reset();
    }

    template <typename T> T *find(const char *name)
    {
        return m_widget->findChild<T *>(QLatin1String(name));
    }

    void show()
    {
        m_store = openSettings(path("settings.ini"));
        m_uploads = std::make_unique<UploadController>(ServicesConfig(), *m_store);
        m_widget = std::make_unique<HistoryWidget>(m_history->store, m_history->settings);
        m_widget->setUploads(m_uploads.get());
        m_widget->resize(1000, 600);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
        if (count() > 0) {
            QTRY_VERIFY(find<QLabel>("lblSize") && !find<QLabel>("lblSize")->text().isEmpty());
        }
    }

    /// The file must not be read before: Windows does not replace files that are open.
    bool waitForSaving()
    {
        const auto *removal = m_widget->findChild<HistoryRemoval *>();
        return QTest::qWaitFor([removal] { return !removal->isSaving(); });
    }

    void click(const char *name) { clickIn(m_widget.get(), name); }

    HistoryRowWidget *row(const char *file)
    {
        auto *list = find<HistoryListView>("listHistory");
        for (int i = 0; i < count(); ++i) {
            HistoryRowWidget *candidate = list->rowWidget(i);
            if (candidate && candidate->entry().fileName == path(file))
                return candidate;
        }
        return nullptr;
    }

    QString path(const char *name) const { return m_history->path(name); }
    static QString text(HistoryRowWidget *row, const char *label)
    {
        return row->findChild<QLabel *>(QLatin1String(label))->text();
    }
    static void clickIn(QWidget *parent, const char *button)
    {
        QTest::mouseClick(parent->findChild<QAbstractButton *>(QLatin1String(button)),
                          Qt::LeftButton);
    }
    QList<QLabel *> headerLabels()
    {
        return find<HistoryHeader>("header")->findChildren<QLabel *>();
    }
    int left(const QLabel *label) const { return label->mapTo(m_widget.get(), {}).x(); }
    bool isEnabled(const char *name) { return find<QPushButton>(name)->isEnabled(); }
    QString page() { return find<QStackedWidget>("pages")->currentWidget()->objectName(); }
    int count() { return find<HistoryListView>("listHistory")->model()->rowCount(); }

    std::unique_ptr<HistoryFixture> m_history;
    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<UploadController> m_uploads;
    std::unique_ptr<HistoryWidget> m_widget;
    std::unique_ptr<QStackedWidget> m_stack; ///< In which it is one of two pages.
};

} // namespace velmora
