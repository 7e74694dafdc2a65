// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioFilesController.h"
#include "app/AppSettings.h"
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"
#include "project/documents/ProjectFile.h"
#include "services/MetricSender.h"
#include "ui/model/ProjectEditor.h"

#include <QAudioDeviceInfo>
#include <QUndoStack>
#include <QtTest>

using namespace velmora;

namespace
{

bool onWindows()
{
    return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

/// The name of a link, which has an ending of its own on Windows.
QString linkName(const char *name)
{
    return QLatin1String(name) + QLatin1String(onWindows() ? ".lnk" : "");
}

} // namespace

class AudioFilesControllerTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        MediaSamples::Tone tone{440, 0, 8000, 1};
        for (const char *name : {"a.wav", "b.wav", "c.wav", "d.wav"}) {
            ++tone.seconds;
            QVERIFY(MediaSamples::makeTone(file(name), tone));
        }
        tone.seconds = 0.3;
        QVERIFY(MediaSamples::makeTone(file("short.wav"), tone));
        QVERIFY(QDir().mkpath(file("music/deep")));
        for (const char *name : {"music/x10.wav", "music/x2.wav", "music/deep/y.wav"})
            QVERIFY(QFile::copy(file("a.wav"), file(name)));
        QVERIFY(writeFile(file("music/readme.txt"), "no music"));
        QVERIFY(writeFile(file("broken.mp3"), "no sound"));
        QVERIFY(QFile::link(file("b.wav"), m_folder.filePath(linkName("link to b"))));
        QVERIFY(QFile::link(file("music"), m_folder.filePath(linkName("link to music"))));
        QVERIFY(QFile::link(file("gone.wav"), m_folder.filePath(linkName("link to nothing"))));
        QVERIFY(writeFile(file("b.desktop"),
                          "[Desktop Entry]\nType=Link\nURL=file://" + file("b.wav").toUtf8()));
    }

    void init()
    {
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        m_editor = std::make_unique<ProjectEditor>(m_settings);
        m_editor->setProject(m_project.get());
        m_controller = std::make_unique<AudioFilesController>(*m_editor);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_controller.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_tester.reset();
        m_controller.reset();
    }

    void filesAreAddedInOrder()
    {
        QSignalSpy inserted(m_controller.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy params(m_controller.get(), &AudioFilesController::paramsChanged);
        QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
        add(files("c.wav a.wav b.wav"));
        QCOMPARE(order(), QStringLiteral("cab"));
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(params.last().at(0).toInt(), 3);
        QCOMPARE(params.last().at(1).toLongLong(), 6000);
        QCOMPARE(m_project->audio().items.first().duration, QStringLiteral("0:00:03"));
        QCOMPARE(m_controller->index(0).data(AudioFilesController::DurationRole).toString(),
                 QStringLiteral("0:00:03"));
        QCOMPARE(refused.size(), 0);
        QCOMPARE(m_editor->undoStack()->count(), 1);
    }

    void filesGoAfterTheirRow_data()
    {
        QTest::addColumn<int>("newRow");
        QTest::addColumn<QString>("expected");
        QTest::newRow("to the end") << -1 << "abcd";
        QTest::newRow("after the first") << 0 << "acdb";
        QTest::newRow("after the last") << 1 << "abcd";
    }
    void filesGoAfterTheirRow()
    {
        QFETCH(int, newRow);
        add(files("a.wav b.wav"));
        LogCapture log;
        add(files("c.wav d.wav"), newRow);
        QTEST(order(), "expected");
        QVERIFY(log.lines().contains(QStringLiteral("NEW AUDIO ROW:'%1' AFTER:'%2'")
                                         .arg(newRow < 0 ? -1 : newRow + 1)
                                         .arg(newRow)));
    }

    void folderIsSearched()
    {
        QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
        add({file("music")});
        QStringList names;
        for (const AudioItem &item : m_project->audio().items)
            names.append(QFileInfo(item.fileName).fileName());
        QCOMPARE(names.filter(QStringLiteral("x")), words("x2.wav x10.wav"));
        QVERIFY(names.size() == 3 && names.contains(QStringLiteral("y.wav")));
        QCOMPARE(refused.size(), 0); // other files in folders are passed over
    }

    void shortcutsAreFollowed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("count");
        QTest::newRow("file") << linkName("link to b") << "b.wav" << 1;
        if (!onWindows())
            QTest::newRow("desktop link")
                << QStringLiteral("b.desktop") << QStringLiteral("b.wav") << 1;
        QTest::newRow("folder") << linkName("link to music") << QString() << 3;
        QTest::newRow("nothing") << linkName("link to nothing") << QString() << 0;
    }
    void shortcutsAreFollowed()
    {
        QFETCH(QString, name);
        QFETCH(QString, target);
        QFETCH(int, count);
        QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
        LogCapture log;
        add({m_folder.filePath(name)});
        QVERIFY(log.lines().contains(QStringLiteral("is shortcut")));
        QCOMPARE(m_controller->rowCount(), count);
        QCOMPARE(refused.size(), count == 0 ? 1 : 0);
        if (!target.isEmpty())
            QCOMPARE(QFileInfo(m_project->audio().items.first().fileName).fileName(), target);
    }

    void unreadableFilesAreLeftOut()
    {
        MetricSender &metrics = MetricSender::instance();
        metrics.configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), QString(), 1000, true);
        QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
        add(files("a.wav broken.mp3 b.wav gone.ogg"));
        QCOMPARE(order(), QStringLiteral("ab"));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.first().first().toStringList(), files("broken.mp3 gone.ogg"));
        QCOMPARE(metrics.pending().filter(QStringLiteral("err4")).size(), 2);
        metrics.configure({}, {}, 1000, false);
    }

    void batchesKeepTheirOrder()
    {
        m_controller->addFiles(files("d.wav c.wav"), -1);
        m_controller->addFiles({file("b.wav")}, -1);
        m_controller->addFiles({file("a.wav")}, -1);
        QVERIFY(m_controller->isAdding());
        QCOMPARE(m_controller->rowCount(), 0); // nothing is read on this thread
        QTRY_VERIFY(!m_controller->isAdding());
        QCOMPARE(order(), QStringLiteral("dcba"));
    }

    void waitingFilesFollowTheirTrack_data()
    {
        QTest::addColumn<QVector<int>>("moved"); // row, before; a row alone is deleted
        QTest::addColumn<QString>("expected");
        QTest::newRow("another was deleted") << QVector<int>{0} << "bdc";
        QTest::newRow("it was deleted") << QVector<int>{1} << "acd";
        QTest::newRow("it was moved") << QVector<int>{1, 0} << "bdac";
    }
    void waitingFilesFollowTheirTrack()
    {
        QFETCH(QVector<int>, moved);
        add(files("a.wav b.wav c.wav"));
        m_controller->addFiles({file("d.wav")}, 1);
        if (moved.size() == 1)
            m_controller->remove(moved);
        else
            m_controller->move({moved.first()}, moved.last());
        QTRY_VERIFY(!m_controller->isAdding());
        QTEST(order(), "expected");
    }

    void cancelledAddingAddsNothing()
    {
        QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
        m_controller->addFiles(files("a.wav broken.mp3"), -1);
        m_controller->cancelAdding();
        QVERIFY(!m_controller->isAdding());
        add({file("b.wav")}); // later than what was cancelled
        QCOMPARE(order(), QStringLiteral("b"));
        QCOMPARE(refused.size(), 0);
    }

    void rowsAreMoved_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("expected");
        QTest::newRow("down") << QVector<int>{0} << 3 << "bcad";
        QTest::newRow("up") << QVector<int>{3} << 0 << "dabc";
        QTest::newRow("neighbours") << QVector<int>{1} << 3 << "acbd";
        QTest::newRow("several up") << QVector<int>{1, 3} << 0 << "bdac";
        QTest::newRow("several down") << QVector<int>{0, 2} << 4 << "bdac";
        QTest::newRow("from both sides") << QVector<int>{0, 3} << 2 << "badc";
        QTest::newRow("in place") << QVector<int>{1, 2} << 2 << "abcd";
    }
    void rowsAreMoved()
    {
        QFETCH(QVector<int>, rows);
        QFETCH(int, before);
        QFETCH(QString, expected);
        addAll();
        QVector<QPersistentModelIndex> moved;
        for (const int row : rows)
            moved.append(m_controller->index(row));
        LogCapture log;
        m_controller->move(rows, before);
        QCOMPARE(order(), expected);
        for (const QPersistentModelIndex &index : moved)
            QVERIFY(index.isValid()); // views keep their selection
        if (rows.size() == 1)
            QVERIFY(log.lines().contains(
                QStringLiteral("Audio moved: %1>>%2").arg(rows.first()).arg(moved.first().row())));
        QCOMPARE(m_editor->undoStack()->count(), expected == QLatin1String("abcd") ? 1 : 2);
        m_editor->undoStack()->setIndex(1);
        QCOMPARE(order(), QStringLiteral("abcd"));
    }

    void rowsAreDeleted()
    {
        addAll();
        LogCapture log;
        m_controller->remove({1, 3, 17});
        QCOMPARE(order(), QStringLiteral("ac"));
        QCOMPARE(m_controller->totalTime(), 4000);
        QVERIFY(log.lines().contains(QStringLiteral("Audio deleted: ") + file("b.wav")));
        m_editor->undoStack()->undo();
        QCOMPARE(order(), QStringLiteral("abcd"));
        QCOMPARE(m_controller->totalTime(), 10000);
    }

    void undoneEditsAreFollowed()
    {
        QSignalSpy removed(m_controller.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy reset(m_controller.get(), &QAbstractItemModel::modelReset);
        addAll();
        m_editor->undoStack()->undo();
        QCOMPARE(m_controller->rowCount(), 0);
        QCOMPARE(removed.size(), 1);
        m_editor->undoStack()->redo();
        QCOMPARE(order(), QStringLiteral("abcd"));
        QCOMPARE(reset.size(), 0);
    }

    void loadedListIsMeasured()
    {
        ProjectFile loaded(m_settings, ProjectFile::TitleSlide::Create);
        AudioItemList list;
        list.items = {{file("b.wav"), QStringLiteral("0:01:00")},
                      {file("gone.wav"), QStringLiteral("0:00:05")},
                      {file("a.wav"), QStringLiteral("nonsense")}};
        loaded.setAudio(list);
        QSignalSpy params(m_controller.get(), &AudioFilesController::paramsChanged);
        m_editor->setProject(&loaded);
        QCOMPARE(params.last().at(0).toInt(), 3);
        QCOMPARE(params.last().at(1).toLongLong(), 65000);
        // Giving up other files does not give up these.
        m_controller->addFiles(files("c.wav"), -1);
        m_controller->cancelAdding();
        QTRY_COMPARE(params.last().at(1).toLongLong(), 3000);
        const auto isBroken = [this](int row) {
            return m_controller->index(row).data(AudioFilesController::BrokenRole).toBool();
        };
        QTRY_VERIFY(isBroken(1));
        QVERIFY(!isBroken(0));

        // Files go and come back while the user is elsewhere.
        QVERIFY(QFile::rename(file("b.wav"), file("gone.wav")));
        m_controller->checkFiles();
        QTRY_VERIFY(isBroken(0) && !isBroken(1));
        QVERIFY(QFile::rename(file("gone.wav"), file("b.wav")));
        m_controller->checkFiles();
        QTRY_VERIFY(!isBroken(0) && isBroken(1));
        QCOMPARE(m_controller->totalTime(), 3000);
        QVERIFY(!m_editor->isModified());
        m_editor->setProject(nullptr);
        QCOMPARE(m_controller->rowCount(), 0);
    }

    void oneTrackPlaysUntilItIsDeleted()
    {
        addAll();
        m_controller->play(3);
        QCOMPARE(m_controller->playingRow(), 3);
        m_controller->play(2);
        QCOMPARE(m_controller->playingRow(), 2);
        QVERIFY(!m_controller->index(3).data(AudioFilesController::PlayingRole).toBool());
        QVERIFY(m_controller->index(2).data(AudioFilesController::PlayingRole).toBool());
        m_controller->remove({0});
        QCOMPARE(m_controller->playingRow(), 1); // still c
        m_controller->remove({1});
        QCOMPARE(m_controller->playingRow(), -1);
        m_controller->play(0);
        m_controller->stop();
        QCOMPARE(m_controller->playingRow(), -1);
    }

    void trackPlaysToItsEnd()
    {
        add({file("short.wav")});
        QSignalSpy failed(m_controller.get(), &AudioFilesController::playFailed);
        m_controller->play(0);
        QTRY_COMPARE(m_controller->playingRow(), -1);
        if (onWindows() && QAudioDeviceInfo::availableDevices(QAudio::AudioOutput).isEmpty())
            QSKIP("Windows plays nothing without a sound device.");
        QCOMPARE(failed.size(), 0);

        // What cannot be played ends as well, and says why.
        QFile::remove(file("short.wav"));
        m_controller->play(0);
        QTRY_COMPARE(m_controller->playingRow(), -1);
        QCOMPARE(failed.size(), 1);
    }

    void filterFollowsTheSystem()
    {
        const QString modern = AudioFilesController::dialogFilter();
        QVERIFY(modern.startsWith(QLatin1String("Audio Files (")));
        for (const char *pattern : {"*.wav", "*.wma", "*.ogg", "*.flac", "*.m4a", "*.mp3"})
            QVERIFY2(modern.contains(QLatin1String(pattern)), pattern);
        const QString old = AudioFilesController::dialogFilter(
            QOperatingSystemVersion(QOperatingSystemVersion::Windows, 5, 1));
        QCOMPARE(old, QStringLiteral("Audio Files (*.wav *.wma *.ogg *.flac)"));
    }

private:
    QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QStringList files(const char *names) const
    {
        return words(names).replaceInStrings(QRegularExpression(QStringLiteral("^")),
                                             m_folder.path() + QLatin1Char('/'));
    }
    void add(const QStringList &files, int newRow = -1)
    {
        m_controller->addFiles(files, newRow);
        QTRY_VERIFY(!m_controller->isAdding());
    }
    /// The first letters of the names in the model, which the project must agree with.
    QString order() const
    {
        QString letters;
        for (int row = 0; row < m_controller->rowCount(); ++row)
            letters += m_controller->index(row).data().toString().at(0);
        QString project;
        for (const AudioItem &item : m_project->audio().items)
            project += QFileInfo(item.fileName).fileName().at(0);
        return letters == project ? letters : letters + QLatin1Char('/') + project;
    }
    void addAll() { add(files("a.wav b.wav c.wav d.wav")); }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<AudioFilesController> m_controller;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(AudioFilesControllerTest)
#include "AudioFilesControllerTest.moc"
