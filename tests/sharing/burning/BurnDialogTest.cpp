// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/BurnDialog.h"
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "sharing/burning/BurnController.h"
#include "sharing/burning/FakeDiscWriter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>

using namespace velmora;

Q_DECLARE_METATYPE(velmora::DiscMedia)

namespace
{

constexpr int kVideoSize = 3000000;

DiscMedia used(qint64 megabytes, bool appendable, bool erasable = true)
{
    DiscMedia media;
    media.present = true;
    media.appendable = appendable;
    media.erasable = erasable;
    media.freeBytes = megabytes * 1048576;
    media.volumeName = QStringLiteral("Holidays");
    return media;
}

DiscMedia blank(qint64 megabytes)
{
    DiscMedia media = used(megabytes, false, false);
    media.blank = true;
    return media;
}

} // namespace

class BurnDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        m_video = m_folder.filePath(QStringLiteral("Summer.mp4"));
        QVERIFY(writeFile(m_video, QByteArray(kVideoSize, 'v')));
    }

    void init()
    {
        m_state = std::make_unique<FakeDiscWriter::State>();
        m_state->media = blank(4483);
    }

    void cleanup()
    {
        m_dialog.reset();
        m_controller.reset();
        QCOMPARE(QFileInfo(m_video).size(), kVideoSize); // The video survives whatever happens.
    }

    void offersDevices()
    {
        open();
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Burn DVD"));
        auto *devices = find<QComboBox>("cbDevices");
        QCOMPARE(devices->count(), 2);
        QCOMPARE(devices->itemText(0), QStringLiteral("[/dev/sr0] (DVDRAM GH0 - 4483 MB Free)"));
        QVERIFY(ready());
        devices->setCurrentIndex(1);
        m_state->media = blank(700);
        QSignalSpy found(m_controller.get(), &BurnController::devicesChanged);
        click("btnRefresh");
        QVERIFY(!ready());
        QTRY_VERIFY(!found.isEmpty());
        QCOMPARE(devices->currentIndex(), 1); // What was chosen stays so.
        QCOMPARE(devices->itemText(1), QStringLiteral("[/dev/sr1] (DVDRAM GH1 - 700 MB Free)"));
    }

    void noDevice_data()
    {
        QTest::addColumn<QString>("hindrance");
        QTest::newRow("none found") << QString();
        QTest::newRow("no burning service") << QStringLiteral("No service");
    }

    void noDevice()
    {
        QFETCH(QString, hindrance);
        m_state->hindrance = hindrance;
        open(QString(), 0);
        QVERIFY(!ready());
        const auto *problem = find<QLabel>("lbProblem");
        QVERIFY(problem->isVisible() && !problem->text().isEmpty());
        QVERIFY(hindrance.isEmpty() || problem->text() == hindrance);
    }

    void slowDriveIsNotWaitedFor()
    {
        m_state->slow = true;
        {
            BurnController controller(std::make_unique<FakeDiscWriter>(*m_state));
            controller.findDevices();
            m_state->asked.acquire();
        }
        m_state->slow = false;
        QTRY_COMPARE(m_state->gone.available(), 1);
    }

    void fieldsStart_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("shown");
        const char *usual = "My slideshow";
        QTest::newRow("none") << QString() << usual;
        QTest::newRow("blanks") << QStringLiteral(" \n ") << usual;
        QTest::newRow("lines") << QStringLiteral("Two\nlines") << "Two lines";
        QTest::newRow("long") << QString(60, QLatin1Char('x')) << QString(15, QLatin1Char('x'));
    }

    void fieldsStart()
    {
        QFETCH(QString, given);
        open(given);
        QTEST(find<QLineEdit>("leDiskTitle")->text(), "shown");
        // Nor can more be typed, or half a character.
        auto *title = find<QLineEdit>("leDiskTitle");
        title->selectAll();
        title->insert(QString(14, QLatin1Char('y')) + QString::fromUcs4(U"\U0001F600"));
        QCOMPARE(title->text(), QString(14, QLatin1Char('y')));
        QCOMPARE(find<QLineEdit>("leFileName")->text(), QStringLiteral("Summer.mp4"));
        QVERIFY(!find<QCheckBox>("cbFinalizeDisk")->isChecked());
    }

    void namesAreChecked_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        for (const char *name : {"film.mp4", "Öl.mp4"})
            QTest::newRow(name) << name << true;
        for (const char *name : {"  ", "a/b.mp4", "..", "a\tb"})
            QTest::newRow(name) << name << false;
        QTest::newRow("103") << QString(103, QLatin1Char('x')) << true;
        QTest::newRow("104") << QString(104, QLatin1Char('x')) << false;
    }

    void namesAreChecked()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        open();
        find<QLineEdit>("leFileName")->setText(name);
        QCOMPARE(ready(), valid);
        QCOMPARE(find<QLabel>("lbNameError")->isVisible(), !valid);
    }

    void refusals_data()
    {
        QTest::addColumn<DiscMedia>("media");
        QTest::addColumn<QString>("message");
        const char *small = "There is not enough disc space for the slideshow";
        QTest::newRow("no disc") << DiscMedia() << "Media disk is not ready";
        QTest::newRow("too small") << blank(2) << small;
        QTest::newRow("closed for good") << used(0, false, false) << small;
        QTest::newRow("too little left") << used(2, true) << small;
        QTest::newRow("too small when erased") << used(2, false) << small;
    }

    void refusals()
    {
        QFETCH(DiscMedia, media);
        open();
        m_state->media = media;
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        click("btnBurn");
        QTRY_VERIFY(!driver.text().isEmpty());
        QTEST(driver.text(), "message");
        QCOMPARE(page(), QStringLiteral("pgSettings"));
        QTRY_VERIFY(ready());
        QCOMPARE(m_state->noted(), QStringList()); // No drive was opened.
    }

    void contentIsAskedAbout_data()
    {
        QTest::addColumn<DiscMedia>("media");
        QTest::addColumn<bool>("mayAdd");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("firstSteps");
        const QStringList erase{QStringLiteral("open 0"), QStringLiteral("erase")};
        const QStringList check{QStringLiteral("open 0"), QStringLiteral("check")};
        QTest::newRow("add") << used(700, true) << true << "btnNo" << check;
        QTest::newRow("erase") << used(700, true) << true << "btnYes" << erase;
        QTest::newRow("closed or full") << used(700, false) << false << "btnYes" << erase;
        QTest::newRow("cancel") << used(700, true) << true << "btnCancelTwo" << QStringList();
    }

    void contentIsAskedAbout()
    {
        QFETCH(DiscMedia, media);
        QFETCH(bool, mayAdd);
        QFETCH(QString, button);
        QFETCH(QStringList, firstSteps);
        m_state->media = media;
        open();
        LogCapture log;
        click("btnBurn");
        QTRY_COMPARE(page(), QStringLiteral("pgNotEmpty"));
        QCOMPARE(find<QLabel>("lbDiskName")->text(), QStringLiteral("Holidays"));
        QCOMPARE(find<QPushButton>("btnNo")->isVisible(), mayAdd);
        const QString no =
            QStringLiteral("Press \"No\" if you want just to burn (add) new files to the disc.\n");
        QCOMPARE(find<QLabel>("lbButtonsInfo")->text(),
                 QStringLiteral("Disc is not empty. Do you want to erase disc before burning?\n"
                                "Press \"Yes\" if you want to erase disc before burning.\n"
                                "%1Press \"Cancel\" to cancel the operation.")
                     .arg(mayAdd ? no : QString()));
        click(button.toLatin1().constData());
        if (firstSteps.isEmpty()) {
            QCOMPARE(page(), QStringLiteral("pgSettings"));
            QCOMPARE(m_state->noted(), QStringList());
            return;
        }
        QTRY_COMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(m_state->noted().mid(0, 2), firstSteps);
        const QStringList lines{QStringLiteral("Burn begin erasing"),
                                QStringLiteral("Burn erase progress 50 from 100")};
        QCOMPARE(log.lines().filter(QStringLiteral("eras")),
                 firstSteps.contains(QStringLiteral("erase")) ? lines : QStringList());
    }

    void burnsInOrder_data()
    {
        QTest::addColumn<bool>("finalize");
        QTest::newRow("open") << false;
        QTest::newRow("closed") << true;
    }

    void burnsInOrder()
    {
        QFETCH(bool, finalize);
        open(QStringLiteral("Sea"));
        LogCapture log;
        find<QComboBox>("cbDevices")->setCurrentIndex(1);
        find<QLineEdit>("leFileName")->setText(QStringLiteral("film.mp4"));
        find<QCheckBox>("cbFinalizeDisk")->setChecked(finalize);
        QSignalSpy finished(m_controller.get(), &BurnController::burnFinished);
        QSignalSpy percents(m_controller.get(), &BurnController::burnProgress);
        QSignalSpy times(m_controller.get(), &BurnController::elapsedTime);
        click("btnBurn");
        QTRY_VERIFY(!finished.isEmpty());
        QCOMPARE(finished.first().first().toBool(), true);
        QCOMPARE(
            m_state->noted(),
            (QStringList{QStringLiteral("open 1"), QStringLiteral("check"),
                         QStringLiteral("image %1 film.mp4 Sea").arg(m_video),
                         finalize ? QStringLiteral("finish closing") : QStringLiteral("finish"),
                         QStringLiteral("write")}));
        QCOMPARE(percents.first().first().toInt(), 42);
        QCOMPARE(times.first().first().toString(), QStringLiteral("00:00"));
        QCOMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(find<QLabel>("lbResult")->text(), QStringLiteral("Succeeded"));
        const QStringList lines = log.lines();
        for (const char *line : {"Burn started", "Burn begin thread", "Burn creating FS",
                                 "Burn write progress 42 from 100", "Burn writing finished"})
            QVERIFY2(lines.contains(QLatin1String(line)), line);
        click("btnClose");
        QVERIFY(m_dialog->isHidden());
    }

    void endsAfterTroubleIn_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<int>("steps");
        QTest::addColumn<bool>("stopped"); // By the user; otherwise the step fails.
        int steps = 0;
        for (const char *step : {"open", "erase", "check", "image", "finish", "write"}) {
            ++steps;
            QTest::addRow("%s fails", step) << step << steps << false;
            QTest::addRow("%s is stopped", step) << step << steps << true;
        }
    }

    void endsAfterTroubleIn()
    {
        QFETCH(QString, step);
        QFETCH(bool, stopped);
        m_state->media = used(700, true);
        (stopped ? m_state->slowStep : m_state->failingStep) = step;
        open();
        click("btnBurn");
        QTRY_COMPARE(page(), QStringLiteral("pgNotEmpty"));
        click("btnYes");
        if (stopped) {
            QVERIFY(m_state->begun.tryAcquire(1, 20000));
            m_controller->cancel();
            m_state->mayEnd.release();
        }
        QTRY_COMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(find<QLabel>("lbResult")->text(), QStringLiteral("Error"));
        QTEST(m_state->noted().size(), "steps"); // Above all, no write after it.
    }

    void cancelAsksFirst()
    {
        m_state->hold = true;
        open();
        click("btnBurn");
        QTRY_COMPARE(page(), QStringLiteral("pgProgress"));
        m_state->writing.acquire();
        QTRY_COMPARE(find<QProgressBar>("progressBar")->value(), 42);
        DialogDriver driver;
        driver.press(QStringLiteral("GO ON"));
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QCOMPARE(driver.failure(), QString());
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_controller->isBurning());
        driver.press(QStringLiteral("STOP"));
        click("btnCancel");
        QTRY_COMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(find<QLabel>("lbResult")->text(), QStringLiteral("Error"));
    }

    void closingTheControllerEndsTheBurn()
    {
        m_state->hold = true;
        open();
        click("btnBurn");
        QTRY_COMPARE(m_state->writing.available(), 1);
        m_dialog.reset();
        m_controller.reset(); // Returns, so the write has ended.
        QCOMPARE(m_state->noted().last(), QStringLiteral("write"));
    }

private:
    void open(const QString &title = QString(), int drives = 2)
    {
        m_controller =
            std::make_unique<BurnController>(std::make_unique<FakeDiscWriter>(*m_state, drives));
        QSignalSpy found(m_controller.get(), &BurnController::devicesChanged);
        m_dialog = std::make_unique<BurnDialog>(*m_controller, m_video, title);
        m_dialog->show();
        QVERIFY(!ready());
        QTRY_VERIFY(!found.isEmpty());
    }

    template <typename T> T *find(const char *name)
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }
    QString page() { return find<QStackedWidget>("pages")->currentWidget()->objectName(); }
    void click(const char *name) { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
    bool ready() { return find<QPushButton>("btnBurn")->isEnabled(); }

    QTemporaryDir m_folder;
    QString m_video;
    std::unique_ptr<FakeDiscWriter::State> m_state;
    std::unique_ptr<BurnController> m_controller;
    std::unique_ptr<BurnDialog> m_dialog;
};

QTEST_MAIN(BurnDialogTest)
#include "BurnDialogTest.moc"
