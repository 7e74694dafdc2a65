// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "platform/DesktopNotification.h"
#include "platform/FileManager.h"
#include "platform/TaskbarProgress.h"

#include <QDBusConnection>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QVariantMap>

using namespace velmora;

namespace
{

const QString kNotifications = QStringLiteral("org.freedesktop.Notifications");
const QString kFileManager = QStringLiteral("org.freedesktop.FileManager1");

} // namespace

/// A desktop's notification service.
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QVector<QStringList> messages; ///< Number of the one to replace, title, text, actions.

public slots:
    uint Notify(const QString &, uint replaces, const QString &, const QString &title,
                const QString &text, const QStringList &actions, const QVariantMap &, int)
    {
        messages.append(QStringList{QString::number(replaces), title, text} + actions);
        return 7;
    }

signals:
    void ActionInvoked(uint id, const QString &action);
};

/// A desktop's file manager.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    QStringList shown;

public slots:
    void ShowItems(const QStringList &addresses, const QString &) { shown += addresses; }
};

// Runs on a session bus of its own, on which the test is the desktop.
class DesktopServicesTest : public QObject
{
    Q_OBJECT
public:
    explicit DesktopServicesTest(const QString &address)
        : m_desktop(QDBusConnection::connectToBus(address, QStringLiteral("desktop")))
    {
    }

public slots:
    void onUpdate(const QString &program, const QVariantMap &properties)
    {
        QCOMPARE(program, QStringLiteral("application://velmora.desktop"));
        const auto value = [&](const char *name) { return properties.value(QLatin1String(name)); };
        m_updates.append(QStringLiteral("%1/%2")
                             .arg(value("progress").toDouble())
                             .arg(value("progress-visible").toInt()));
    }
    void onOpened(const QUrl &address) { m_opened.append(address); }

private slots:
    void initTestCase()
    {
        QVERIFY(m_desktop.isConnected());
        QVERIFY(m_desktop.registerService(kNotifications));
        QVERIFY(m_desktop.registerObject(
            QStringLiteral("/org/freedesktop/Notifications"), &m_notifications,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(m_desktop.registerObject(QStringLiteral("/org/freedesktop/FileManager1"),
                                         &m_fileManager, QDBusConnection::ExportAllSlots));
        QVERIFY(m_desktop.connect(
            QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
            QStringLiteral("Update"), this, SLOT(onUpdate(QString, QVariantMap))));
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "onOpened");
    }

    void taskbarShowsProgress()
    {
        {
            const auto taskbar = createTaskbarProgress();
            taskbar->setVisible(true);
            taskbar->setValue(42);
            taskbar->setValue(42);
            taskbar->setValue(170);
            taskbar->setPaused(true);
            taskbar->setPaused(false);
        }
        // Progress and whether it is visible, which it is not in a pause.
        QTRY_COMPARE(m_updates, words("0/1 0.42/1 1/1 1/0 1/1 1/0"));
    }

    void notificationIsShownAndClicked()
    {
        const auto notification = createDesktopNotification();
        QSignalSpy activated(notification.get(), &DesktopNotification::activated);
        notification->show(QStringLiteral("Ready"), QStringLiteral("a <b> & c.mp4"));
        QTRY_COMPARE(m_notifications.messages.size(), 1);
        const QStringList first = m_notifications.messages.first();
        QCOMPARE(first.mid(0, 4), (QStringList{QStringLiteral("0"), QStringLiteral("Ready"),
                                               QStringLiteral("a &lt;b&gt; &amp; c.mp4"),
                                               QStringLiteral("default")}));

        const auto click = [this](uint id, const char *action) {
            emit m_notifications.ActionInvoked(id, QLatin1String(action));
        };
        // Until the server's answer has arrived, the message has no number to be clicked by.
        QTRY_VERIFY((click(7, "default"), activated.wait(50)));

        notification->show(QStringLiteral("Again"), QString());
        QTRY_COMPARE(m_notifications.messages.size(), 2);
        QCOMPARE(m_notifications.messages.last().first(), QStringLiteral("7"));
        activated.clear();
        click(8, "default"); // another program's
        click(7, "other");
        click(7, "default");
        QTRY_COMPARE(activated.size(), 1);
    }

    void fileIsShownInItsFolder_data()
    {
        QTest::addColumn<bool>("hasFileManager");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("selected");
        QTest::newRow("file manager") << true << "my video.mp4" << true;
        QTest::newRow("file is gone") << true << "gone.mp4" << false;
        QTest::newRow("no file manager") << false << "my video.mp4" << false;
    }

    void fileIsShownInItsFolder()
    {
        QFETCH(bool, hasFileManager);
        QFETCH(QString, name);
        QFETCH(bool, selected);
        m_fileManager.shown.clear();
        m_opened.clear();
        if (hasFileManager)
            QVERIFY(m_desktop.registerService(kFileManager));
        const QTemporaryDir folder;
        QVERIFY(writeFile(folder.filePath(QStringLiteral("my video.mp4"))));
        QVERIFY(createFileManager()->showInFolder(folder.filePath(name)));
        const QUrl address = QUrl::fromLocalFile(selected ? folder.filePath(name) : folder.path());
        if (selected)
            QTRY_COMPARE(m_fileManager.shown, QStringList(address.toString(QUrl::FullyEncoded)));
        else
            QTRY_COMPARE(m_opened, QVector<QUrl>({address}));
        m_desktop.unregisterService(kFileManager);
    }

    void missingFolderIsRefused()
    {
        QVERIFY(!createFileManager()->showInFolder(QStringLiteral("/no/such/folder/a.mp4")));
        QVERIFY(!createFileManager()->showInFolder(QString()));
    }

private:
    QDBusConnection m_desktop;
    FakeNotifications m_notifications;
    FakeFileManager m_fileManager;
    QStringList m_updates;
    QVector<QUrl> m_opened;
};

int main(int argc, char **argv)
{
    // Qt connects to the bus that the environment names when it is first asked for it.
    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
              words("--session --nofork --nopidfile --print-address"));
    if (!bus.waitForStarted() || !bus.waitForReadyRead())
        return 1;
    const QByteArray address = bus.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QGuiApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("velmora"));
    DesktopServicesTest test(QString::fromUtf8(address));
    const int result = QTest::qExec(&test, argc, argv);
    bus.kill();
    bus.waitForFinished();
    return result;
}

#include "DesktopServicesTest.moc"
