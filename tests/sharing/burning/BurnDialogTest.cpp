// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/BurnDialog.h"
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
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

constexpr qint64 kMegabyte = 1048576;
constexpr int kVideoSize = 3000000;

DiscMedia blank(qint64 megabytes)
{
    DiscMedia media;
    media.present = true;
    media.blank = true;
    media.freeBytes = megabytes * kMegabyte;
    return media;
}

DiscMedia used(qint64 free, bool appendable, bool erasable = true)
{
    DiscMedia media;
    media.present = true;
    media.appendable = appendable;
    media.erasable = erasable;
    media.freeBytes = free * kMegabyte;
    media.volumeName = QStringLiteral("Holidays");
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
        QFile file(m_video);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(kVideoSize, 'v')), kVideoSize);
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
        QVERIFY(found.wait());
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
        QVERIFY(find<QLabel>("lbProblem")->isVisible());
        QVERIFY(!find<QLabel>("lbProblem")->text().isEmpty());
        QVERIFY(hindrance.isEmpty() || find<QLabel>("lbProblem")->text() == hindrance);
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
        const QString usual = QStringLiteral("My slideshow");
        QTest::newRow("none") << "" << usual;
        QTest::newRow("blanks") << " \n " << usual;
        QTest::newRow("lines") << "Two\nlines" << QStringLiteral("Two lines");
        QTest::newRow("long") << QString(60, QLatin1Char('x')) << QString(32, QLatin1Char('x'));
    }

    void fieldsStart()
    {
        QFETCH(QString, given);
        QFETCH(QString, shown);
        open(given);
        QCOMPARE(find<QLineEdit>("leDiskTitle")->text(), shown);
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
        const QString small = QStringLiteral("There is not enough disc space for the slideshow");
        QTest::newRow("no disc") << DiscMedia() << QStringLiteral("Media disk is not ready");
        QTest::newRow("too small") << blank(2) << small;
        QTest::newRow("closed for good") << used(0, false, false) << small;
        QTest::newRow("too little left") << used(2, true) << small;
        QTest::newRow("too small when erased") << used(2, false) << small;
    }

    void refusals()
    {
        QFETCH(DiscMedia, media);
        QFETCH(QString, message);
        open();
        m_state->media = media;
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        click("btnBurn");
        QTRY_COMPARE(driver.text(), message);
        QCOMPARE(page(), QStringLiteral("pgSettings"));
        QTRY_VERIFY(ready());
        QCOMPARE(m_state->noted(), QStringList()); // No drive was opened.
    }

    void contentIsAskedAbout_data()
    {
        QTest::addColumn<DiscMedia>("media");
        QTest::addColumn<bool>("mayAdd");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("firstSteps");
        const QString erase = QStringLiteral("open 0,erase");
        QTest::newRow("add") << used(700, true) << true << "btnNo"
                             << QStringLiteral("open 0,check");
        QTest::newRow("erase") << used(700, true) << true << "btnYes" << erase;
        QTest::newRow("closed or full") << used(700, false) << false << "btnYes" << erase;
        QTest::newRow("cancel") << used(700, true) << true << "btnCancelTwo" << QString();
    }

    void contentIsAskedAbout()
    {
        QFETCH(DiscMedia, media);
        QFETCH(bool, mayAdd);
        QFETCH(QString, button);
        QFETCH(QString, firstSteps);
        m_state->media = media;
        open();
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
        QCOMPARE(m_state->noted().mid(0, 2).join(QLatin1Char(',')), firstSteps);
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
        QVERIFY(finished.wait());
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
        for (const char *line :
             {"Burn started", "Burn begin thread", "Burn creating FS", "Burn writing",
              "Burn write progress 42 from 100", "Burn writing finished"})
            QVERIFY2(lines.contains(QLatin1String(line)), line);
        click("btnClose");
        QVERIFY(m_dialog->isHidden());
    }

    void failingStep_data()
    {
        QTest::addColumn<int>("steps");
        int steps = 0;
        for (const char *step : {"open", "erase", "check", "image", "finish", "write"})
            QTest::newRow(step) << ++steps;
    }

    void failingStep()
    {
        QFETCH(int, steps);
        m_state->media = used(700, true);
        m_state->failingStep = QString::fromLatin1(QTest::currentDataTag());
        open();
        click("btnBurn");
        QTRY_COMPARE(page(), QStringLiteral("pgNotEmpty"));
        click("btnYes");
        QTRY_COMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(find<QLabel>("lbResult")->text(), QStringLiteral("Error"));
        QCOMPARE(m_state->noted().size(), steps); // Nothing follows a step that failed.
    }

    void stoppedStep_data() { failingStep_data(); }

    void stoppedStep()
    {
        QFETCH(int, steps);
        m_state->media = used(700, true);
        m_state->slowStep = QString::fromLatin1(QTest::currentDataTag());
        open();
        click("btnBurn");
        QTRY_COMPARE(page(), QStringLiteral("pgNotEmpty"));
        click("btnYes");
        QVERIFY(m_state->begun.tryAcquire(1, 20000));
        m_controller->cancel();
        m_state->mayEnd.release();
        QTRY_COMPARE(page(), QStringLiteral("pgResult"));
        QCOMPARE(find<QLabel>("lbResult")->text(), QStringLiteral("Error"));
        QCOMPARE(m_state->noted().size(), steps); // Above all, no write after it.
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
        QVERIFY(found.wait());
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
