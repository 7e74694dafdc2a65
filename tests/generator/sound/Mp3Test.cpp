// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/Mp3.h"
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "helpers/MediaSamples.h"
#include "helpers/OrdinaryUser.h"

#include <QtTest>

using namespace velmora;

class Mp3Test : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        for (const char *name : {"TMPDIR", "TMP"}) // the second one on Windows
            qunsetenv(name);
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char *name : {"TMPDIR", "TMP"})
            qputenv(name, m_folder->path().toUtf8());
        QVERIFY(MediaSamples::makeTone(file(QStringLiteral("tone.mp3")), {700, 1, 32000, 1}));
    }

    void convertsIntoTheTemporaryFolder()
    {
        const QString wav = Mp3::convertAudio(file(QStringLiteral("tone.mp3")));
        QCOMPARE(QFileInfo(wav).path(), file(QStringLiteral("WavTempDir")));
        const MediaSamples::Sound sound = MediaSamples::listen(wav);
        QCOMPARE(MediaSamples::tone(sound, 0.1, 0.9, {350, 700, 1400}), 700);
    }

    void keepsFilesThatAreThere()
    {
        const QString first = Mp3::convertAudio(file(QStringLiteral("tone.mp3")));
        const QString second = Mp3::convertAudio(file(QStringLiteral("tone.mp3")));
        QVERIFY(!first.isEmpty() && !second.isEmpty() && first != second);
        QVERIFY(QFile::remove(first));
        QCOMPARE(Mp3::convertAudio(file(QStringLiteral("tone.mp3"))), first);
    }

    void failsWithoutLeavings()
    {
        QCOMPARE(Mp3::convertAudio(file(QStringLiteral("missing.mp3"))), QString());
        QVERIFY(QDir(file(QStringLiteral("WavTempDir"))).entryList(QDir::Files).isEmpty());
    }

    void failsWithoutAFolder()
    {
        QVERIFY(writeFile(file(QStringLiteral("WavTempDir"))));
        QTest::ignoreMessage(QtWarningMsg, "Mp3. Failed to create temp folder for wav files");
        QCOMPARE(Mp3::convertAudio(file(QStringLiteral("tone.mp3"))), QString());
    }

    void failsInFolderOfAnotherUser()
    {
        const QString folder = file(QStringLiteral("WavTempDir"));
        const auto readable =
            QFile::ReadOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::setPermissions(m_folder->path(), readable | QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(folder, readable));
        const LogCapture log;
        {
            const OrdinaryUser user;
            if (!user.isOne())
                QSKIP("This user may write everywhere.");
            QCOMPARE(Mp3::convertAudio(file(QStringLiteral("tone.mp3"))), QString());
        }
        QCOMPARE(
            log.lines(QtWarningMsg),
            QStringList{QStringLiteral("Mp3. Failed to write into temp folder %1 Permission denied")
                            .arg(folder)});
        QVERIFY(QFile::setPermissions(folder, readable | QFile::WriteOwner));
    }

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(Mp3Test)
#include "Mp3Test.moc"
