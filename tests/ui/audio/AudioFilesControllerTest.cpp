// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioFilesController.h"
#include "app/AppSettings.h"
#include "helpers/LogCapture.h"
#include "helpers/MediaSamples.h"
#include "project/documents/ProjectFile.h"
#include "services/MetricSender.h"
#include "ui/model/ProjectEditor.h"

#include <QAbstractItemModelTester>
#include <QAudioDeviceInfo>
#include <QDir>
#include <QFile>
#include <QOperatingSystemVersion>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

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
    void initTestCase();
    void init();
    void cleanup();
    void filesAreAddedInOrder();
    void filesGoAfterTheirRow_data();
    void filesGoAfterTheirRow();
    void folderIsSearched();
    void shortcutsAreFollowed_data();
    void shortcutsAreFollowed();
    void unreadableFilesAreLeftOut();
    void batchesKeepTheirOrder();
    void cancelledAddingAddsNothing();
    void rowsAreMoved_data();
    void rowsAreMoved();
    void rowsAreDeleted();
    void undoneEditsAreFollowed();
    void loadedListIsMeasured();
    void oneTrackPlaysUntilItIsDeleted();
    void trackPlaysToItsEnd();
    void filterFollowsTheSystem();

private:
    QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
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
    void addAll() { add({file("a.wav"), file("b.wav"), file("c.wav"), file("d.wav")}); }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<AudioFilesController> m_controller;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void AudioFilesControllerTest::initTestCase()
{
    MediaSamples::Tone tone;
    tone.sampleRate = 8000;
    tone.channels = 1;
    double seconds = 1;
    for (const char *name : {"a.wav", "b.wav", "c.wav", "d.wav"}) {
        tone.seconds = seconds++;
        QVERIFY(MediaSamples::makeTone(file(name), tone));
    }
    tone.seconds = 0.3;
    QVERIFY(MediaSamples::makeTone(file("short.wav"), tone));
    QDir folder(m_folder.path());
    QVERIFY(folder.mkpath(QStringLiteral("music/deep")));
    QVERIFY(QFile::copy(file("a.wav"), file("music/x10.wav")));
    QVERIFY(QFile::copy(file("a.wav"), file("music/x2.wav")));
    QVERIFY(QFile::copy(file("a.wav"), file("music/deep/y.wav")));
    QFile text(file("music/readme.txt"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no music") > 0);
    QFile broken(file("broken.mp3"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no sound") > 0);
    QVERIFY(QFile::link(file("b.wav"), m_folder.filePath(linkName("link to b"))));
    QVERIFY(QFile::link(file("music"), m_folder.filePath(linkName("link to music"))));
    QVERIFY(QFile::link(file("gone.wav"), m_folder.filePath(linkName("link to nothing"))));
    QFile desktop(file("b.desktop"));
    QVERIFY(desktop.open(QIODevice::WriteOnly));
    QVERIFY(desktop.write("[Desktop Entry]\nType=Link\nURL=file://" + file("b.wav").toUtf8()) > 0);
}

void AudioFilesControllerTest::init()
{
    m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
    m_editor = std::make_unique<ProjectEditor>(m_settings);
    m_editor->setProject(m_project.get());
    m_controller = std::make_unique<AudioFilesController>(*m_editor);
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_controller.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void AudioFilesControllerTest::cleanup()
{
    m_tester.reset();
    m_controller.reset();
}

void AudioFilesControllerTest::filesAreAddedInOrder()
{
    QSignalSpy inserted(m_controller.get(), &QAbstractItemModel::rowsInserted);
    QSignalSpy params(m_controller.get(), &AudioFilesController::paramsChanged);
    QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
    add({file("c.wav"), file("a.wav"), file("b.wav")});
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

void AudioFilesControllerTest::filesGoAfterTheirRow_data()
{
    QTest::addColumn<int>("newRow");
    QTest::addColumn<QString>("expected");
    QTest::newRow("to the end") << -1 << QStringLiteral("abcd");
    QTest::newRow("after the first") << 0 << QStringLiteral("acdb");
    QTest::newRow("after the last") << 1 << QStringLiteral("abcd");
}

void AudioFilesControllerTest::filesGoAfterTheirRow()
{
    QFETCH(int, newRow);
    QFETCH(QString, expected);
    add({file("a.wav"), file("b.wav")});
    LogCapture log;
    add({file("c.wav"), file("d.wav")}, newRow);
    QCOMPARE(order(), expected);
    QVERIFY(log.lines().contains(QStringLiteral("NEW AUDIO ROW:'%1' AFTER:'%2'")
                                     .arg(newRow < 0 ? -1 : newRow + 1)
                                     .arg(newRow)));
}

void AudioFilesControllerTest::folderIsSearched()
{
    QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
    add({file("music")});
    QStringList names;
    for (const AudioItem &item : m_project->audio().items)
        names.append(QFileInfo(item.fileName).fileName());
    QCOMPARE(names.size(), 3);
    QVERIFY(names.contains(QStringLiteral("y.wav")));
    QVERIFY(names.indexOf(QStringLiteral("x2.wav")) < names.indexOf(QStringLiteral("x10.wav")));
    QCOMPARE(refused.size(), 0); // other files in folders are passed over
}

void AudioFilesControllerTest::shortcutsAreFollowed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("count");
    QTest::newRow("file") << linkName("link to b") << QStringLiteral("b.wav") << 1;
    if (!onWindows())
        QTest::newRow("desktop link")
            << QStringLiteral("b.desktop") << QStringLiteral("b.wav") << 1;
    QTest::newRow("folder") << linkName("link to music") << QString() << 3;
    QTest::newRow("nothing") << linkName("link to nothing") << QString() << 0;
}

void AudioFilesControllerTest::shortcutsAreFollowed()
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

void AudioFilesControllerTest::unreadableFilesAreLeftOut()
{
    MetricSender &metrics = MetricSender::instance();
    metrics.configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), QString(), 1000, true);
    QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
    add({file("a.wav"), file("broken.mp3"), file("b.wav"), file("gone.ogg")});
    QCOMPARE(order(), QStringLiteral("ab"));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.first().first().toStringList(),
             (QStringList{file("broken.mp3"), file("gone.ogg")}));
    QCOMPARE(metrics.pending().filter(QStringLiteral("err4")).size(), 2);
    metrics.configure({}, {}, 1000, false);
}

void AudioFilesControllerTest::batchesKeepTheirOrder()
{
    m_controller->addFiles({file("d.wav"), file("c.wav")}, -1);
    m_controller->addFiles({file("b.wav")}, -1);
    m_controller->addFiles({file("a.wav")}, -1);
    QVERIFY(m_controller->isAdding());
    QCOMPARE(m_controller->rowCount(), 0); // nothing is read on this thread
    QTRY_VERIFY(!m_controller->isAdding());
    QCOMPARE(order(), QStringLiteral("dcba"));
}

void AudioFilesControllerTest::cancelledAddingAddsNothing()
{
    QSignalSpy refused(m_controller.get(), &AudioFilesController::notAllAdded);
    m_controller->addFiles({file("a.wav"), file("broken.mp3")}, -1);
    m_controller->cancelAdding();
    QVERIFY(!m_controller->isAdding());
    add({file("b.wav")}); // later than what was cancelled
    QCOMPARE(order(), QStringLiteral("b"));
    QCOMPARE(refused.size(), 0);
}

void AudioFilesControllerTest::rowsAreMoved_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("logged");
    QTest::newRow("down") << QVector<int>{0} << 3 << QStringLiteral("bcad")
                          << QStringLiteral("Audio moved: 0>>2");
    QTest::newRow("up") << QVector<int>{3} << 0 << QStringLiteral("dabc")
                        << QStringLiteral("Audio moved: 3>>0");
    QTest::newRow("neighbours") << QVector<int>{1} << 3 << QStringLiteral("acbd")
                                << QStringLiteral("Audio moved: 1>>2");
    QTest::newRow("several up") << QVector<int>{1, 3} << 0 << QStringLiteral("bdac") << QString();
    QTest::newRow("several down") << QVector<int>{0, 2} << 4 << QStringLiteral("bdac") << QString();
    QTest::newRow("from both sides")
        << QVector<int>{0, 3} << 2 << QStringLiteral("badc") << QString();
    QTest::newRow("in place") << QVector<int>{1, 2} << 2 << QStringLiteral("abcd") << QString();
}

void AudioFilesControllerTest::rowsAreMoved()
{
    QFETCH(QVector<int>, rows);
    QFETCH(int, before);
    QFETCH(QString, expected);
    QFETCH(QString, logged);
    addAll();
    QVector<QPersistentModelIndex> moved;
    for (const int row : rows)
        moved.append(m_controller->index(row));
    LogCapture log;
    m_controller->move(rows, before);
    QCOMPARE(order(), expected);
    for (const QPersistentModelIndex &index : moved)
        QVERIFY(index.isValid()); // views keep their selection
    if (!logged.isEmpty())
        QVERIFY(log.lines().contains(logged));
    const bool changed = expected != QLatin1String("abcd");
    QCOMPARE(m_editor->undoStack()->count(), changed ? 2 : 1);
    m_editor->undoStack()->setIndex(1);
    QCOMPARE(order(), QStringLiteral("abcd"));
}

void AudioFilesControllerTest::rowsAreDeleted()
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

void AudioFilesControllerTest::undoneEditsAreFollowed()
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

void AudioFilesControllerTest::loadedListIsMeasured()
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
    QTRY_COMPARE(params.last().at(1).toLongLong(), 3000);
    QTRY_VERIFY(m_controller->index(1).data(AudioFilesController::BrokenRole).toBool());
    QVERIFY(!m_controller->index(0).data(AudioFilesController::BrokenRole).toBool());
    QVERIFY(!m_editor->isModified());
    m_editor->setProject(nullptr);
    QCOMPARE(m_controller->rowCount(), 0);
}

void AudioFilesControllerTest::oneTrackPlaysUntilItIsDeleted()
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

void AudioFilesControllerTest::trackPlaysToItsEnd()
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

void AudioFilesControllerTest::filterFollowsTheSystem()
{
    const QString modern = AudioFilesController::dialogFilter();
    QVERIFY(modern.startsWith(QLatin1String("Audio Files (")));
    for (const char *pattern : {"*.wav", "*.wma", "*.ogg", "*.flac", "*.m4a", "*.mp3"})
        QVERIFY2(modern.contains(QLatin1String(pattern)), pattern);
    const QString old = AudioFilesController::dialogFilter(
        QOperatingSystemVersion(QOperatingSystemVersion::Windows, 5, 1));
    QCOMPARE(old, QStringLiteral("Audio Files (*.wav *.wma *.ogg *.flac)"));
}

QTEST_MAIN(AudioFilesControllerTest)
#include "AudioFilesControllerTest.moc"
