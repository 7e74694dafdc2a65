// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/playback/VideoDialog.h"
#include "chrome/SeekSlider.h"
#include "chrome/Theme.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"
#include "sharing/playback/VideoPicture.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace velmora;

class VideoDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        // Wine's video renderer, which Qt would take there, crashes on what Wine's decoder
        // delivers.
        qputenv("QT_DIRECTSHOW_NO_EVR", "1");
        // A red second, then green, 12 s in all, in a shape that is not the screen's.
        QVERIFY(MediaSamples::encode(words("-f lavfi -i color=red:s=320x240:r=25:d=1 "
                                           "-f lavfi -i color=green:s=320x240:r=25:d=11 "
                                           "-filter_complex concat=n=2 -pix_fmt yuv420p")
                                     << path("a.mp4")));
        QVERIFY(MediaSamples::makeTone(path("sound.wav"), MediaSamples::Tone()));
        QVERIFY(writeFile(path("broken.mp4"), QByteArray(100000, '\0')));
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_dialog.reset(); }

    void playsVideo()
    {
        if (!opens(path("a.mp4")))
            QSKIP("This system has nothing to play MP4 videos with.");
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("a.mp4"));
        const auto *picture = find<VideoPicture>("picture");
        QCOMPARE(picture->frame().size(), QSize(320, 240));
        QVERIFY(QColor(picture->frame().pixel(100, 100)).red() > 200);
        QTRY_VERIFY(QColor(picture->frame().pixel(100, 100)).green() > 100);
        QVERIFY(plays());
        QVERIFY(position() >= 900);
        QTRY_COMPARE(find<QLabel>("lblLength")->text(), QStringLiteral("00:12"));
        // The whole picture in its shape, with nothing beside it.
        QCOMPARE(picture->width() * 240, picture->height() * 320);
        QVERIFY(find<QWidget>("picture")->grab().toImage().pixelColor(2, 2).green() > 100);
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(m_dialog->isHidden());
        QCOMPARE(m_failed->size(), 0);
    }

    void keys_data()
    {
        QTest::addColumn<bool>("onSlider"); // Which has the keys at first.
        QTest::newRow("slider") << true;
        QTest::newRow("button") << false;
    }

    void keys()
    {
        QFETCH(bool, onSlider);
        if (!opens(path("a.mp4")))
            QSKIP("This system has nothing to play MP4 videos with.");
        QTRY_COMPARE(find<QLabel>("lblLength")->text(), QStringLiteral("00:12"));
        QWidget *focused = onSlider ? find<QWidget>("slPosition") : find<QWidget>("btnPlay");
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_Space);
        QTRY_VERIFY(!plays());
        const int before = position();
        QTest::keyClick(focused, Qt::Key_Right);
        QTRY_VERIFY(position() >= before + 4900);
        QTRY_COMPARE(find<QLabel>("lblTime")->text(), QStringLiteral("00:05"));
        QTest::keyClick(focused, Qt::Key_Left);
        QTest::keyClick(focused, Qt::Key_Left);
        QTRY_VERIFY(position() < 1000);
        QTest::keyClick(focused, Qt::Key_Space);
        QTRY_VERIFY(plays());
        // To the end, where it stops and can be played again.
        find<SeekSlider>("slPosition")->setFocus();
        QTest::keyClick(find<QWidget>("slPosition"), Qt::Key_End);
        QTRY_VERIFY(!plays());
        QTest::mouseClick(find<QWidget>("picture"), Qt::LeftButton);
        QTRY_VERIFY(plays());
        QTRY_VERIFY(position() < 5000);
    }

    void leavesToOthers_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"broken.mp4", "gone.mp4", "sound.wav"})
            QTest::newRow(file) << path(file);
    }

    void leavesToOthers()
    {
        QFETCH(QString, file);
        QVERIFY(!opens(file));
        QCOMPARE(m_failed->size(), 1);
    }

private:
    template <typename T> T *find(const char *name)
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    /// Whether the dialog opens with a picture of @p file; on failure it closes by itself.
    bool opens(const QString &file)
    {
        m_dialog = std::make_unique<VideoDialog>(file);
        m_failed = std::make_unique<QSignalSpy>(m_dialog.get(), &VideoDialog::failed);
        m_dialog->play();
        const auto hasEnded = [this] { return m_dialog->isVisible() || m_failed->size() > 0; };
        return QTest::qWaitFor(hasEnded, 20000) && m_dialog->isVisible();
    }

    bool plays()
    {
        return find<QToolButton>("btnPlay")->accessibleName() == QLatin1String("Pause");
    }
    int position() { return find<SeekSlider>("slPosition")->value(); }

    QTemporaryDir m_folder;
    std::unique_ptr<VideoDialog> m_dialog;
    std::unique_ptr<QSignalSpy> m_failed;
};

QTEST_MAIN(VideoDialogTest)
#include "VideoDialogTest.moc"
