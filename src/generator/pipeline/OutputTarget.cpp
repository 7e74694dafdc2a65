// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/OutputTarget.h"

#include "app/Paths.h"
#include "generator/GeneratorLog.h"
#include "generator/media/DiskSpace.h"
#include "platform/FileNames.h"
#include "platform/Shortened.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <filesystem>
#include <system_error>

namespace velmora
{

namespace
{

// In the units of FileNames::length().
constexpr int kLongestName = 255;     // on all common file systems
constexpr int kTemporaryReserve = 48; // of the temporary name beyond the video's name
constexpr int kRandomLetters = 6;
constexpr int kHashLetters = 8;
constexpr int kLockPatience = 200;    // ms; another start may just be looking at the lock
constexpr int kTrialSize = 64 * 1024; // bytes
constexpr int kShownName = 60;        // characters of a long name in messages
constexpr int kMostNames = 1000;      // that are tried for a video that cannot have its own

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(velmora::OutputTarget)
};

RenderError outputError(const QString &text)
{
    return {RenderErrorCode::kOutput, text};
}

QString randomLetters()
{
    static const QLatin1String letters("abcdefghijklmnopqrstuvwxyz0123456789");
    QString text;
    for (int i = 0; i < kRandomLetters; ++i)
        text += letters.at(QRandomGenerator::global()->bounded(letters.size()));
    return text;
}

/// The same for all spellings of a path that name one file.
QByteArray hashOf(const QString &path)
{
    return QCryptographicHash::hash(FileNames::identity(path).toUtf8(), QCryptographicHash::Sha1)
        .toHex();
}

std::filesystem::path filePath(const QString &name)
{
    return std::filesystem::u8path(FileNames::inFiles(name).toStdString());
}

} // namespace

OutputTarget::~OutputTarget()
{
    release();
}

RenderError OutputTarget::prepare(const QString &fileName, const QString &format,
                                  const QString &lockFolder)
{
    if (fileName.isEmpty())
        return outputError(Texts::tr("The project does not name a video file to write."));
    chooseName(fileName, format);
    RenderError error = checkName();
    if (!error.isSet())
        error = lock(lockFolder);
    if (!error.isSet()) {
        removeStrays();
        m_temporaryFile = QStringLiteral("%1/%2%3.%4")
                              .arg(m_folder, m_temporaryStem, randomLetters(), m_extension);
        error = tryWriting();
    }
    if (error.isSet())
        qCWarning(generatorLog) << "The video cannot be written:" << m_fileName;
    return error;
}

RenderError OutputTarget::commit()
{
    std::error_code failure;
    std::filesystem::rename(filePath(m_temporaryFile), filePath(m_fileName), failure);
    if (!failure) {
        m_temporaryFile.clear();
        return {};
    }
    const QString text = Texts::tr("The finished video could not be put in place as \"%1\": %2.")
                             .arg(m_fileName, QString::fromStdString(failure.message()));
    qCWarning(generatorLog) << "Error" << failure.value() << "on putting in place" << m_fileName;
    const QString kept = keepUnderFreeName();
    if (kept.isEmpty())
        return outputError(text);
    return outputError(text + QLatin1Char('\n') +
                       Texts::tr("The video was kept as \"%1\".").arg(kept));
}

/// Returns the name, empty without success.
QString OutputTarget::keepUnderFreeName()
{
    const QFileInfo wished(m_fileName);
    const QString stem =
        shortened(wished.completeBaseName(), kLongestName - kTemporaryReserve, FileNames::length);
    for (int number = 2; number <= kMostNames; ++number) {
        const QString name = QStringLiteral("%1/%2 (%3).%4")
                                 .arg(m_folder, stem, QString::number(number), wished.suffix());
        if (QFileInfo::exists(name))
            continue;
        if (!QFile::rename(m_temporaryFile, name))
            return {};
        qCInfo(generatorLog) << "Kept the video as" << name;
        m_temporaryFile.clear();
        return name;
    }
    return {};
}

void OutputTarget::release()
{
    if (!m_temporaryFile.isEmpty())
        QFile::remove(m_temporaryFile);
    m_temporaryFile.clear();
    m_lock.reset();
}

const QStringList &OutputTarget::knownSuffixes()
{
    static const QStringList suffixes{QStringLiteral("mp4"),  QStringLiteral("avi"),
                                      QStringLiteral("mov"),  QStringLiteral("wmv"),
                                      QStringLiteral("webm"), QStringLiteral("mkv")};
    return suffixes;
}

bool OutputTarget::isTemporaryName(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\..*\\.part-[a-z0-9]{%1}(\\.part)?\\.[a-z0-9]+$").arg(kRandomLetters));
    return pattern.match(name).hasMatch();
}

void OutputTarget::chooseName(const QString &fileName, const QString &format)
{
    QFileInfo info(fileName);
    m_extension = info.suffix().toLower();
    m_fileName = info.absoluteFilePath();
    if (!knownSuffixes().contains(m_extension)) {
        const QString wanted = format.toLower();
        m_extension = knownSuffixes().contains(wanted) ? wanted : QStringLiteral("mkv");
        m_fileName += QLatin1Char('.') + m_extension;
        info.setFile(m_fileName);
    }
    m_folder = info.absolutePath();
    const QString name = info.completeBaseName();
    QString stem = shortened(name, kLongestName - kTemporaryReserve, FileNames::length);
    if (stem != name) // Videos of a long name may differ in its end only.
        stem += QLatin1Char('~') + QString::fromLatin1(hashOf(name).left(kHashLetters));
    m_temporaryStem = QLatin1Char('.') + stem + QStringLiteral(".part-");
}

RenderError OutputTarget::checkName() const
{
    const QFileInfo info(m_fileName);
    const QFileInfo folder(m_folder);
    if (FileNames::length(info.fileName()) > kLongestName)
        return outputError(
            Texts::tr("The video's name \"%1...\" is too long. Please choose a shorter one.")
                .arg(info.fileName().left(kShownName)));
    if (!folder.exists())
        return outputError(
            Texts::tr("The folder \"%1\" for the video does not exist.").arg(m_folder));
    if (!folder.isDir())
        return outputError(Texts::tr("The video cannot be written into \"%1\": it is not a folder.")
                               .arg(m_folder));
    if (info.isDir())
        return outputError(
            Texts::tr("The video cannot be written as \"%1\": a folder has that name.")
                .arg(m_fileName));
    return {};
}

RenderError OutputTarget::tryWriting() const
{
    QFile trial(m_temporaryFile);
    const bool opened = trial.open(QIODevice::WriteOnly);
    const bool written =
        opened && trial.write(QByteArray(kTrialSize, '\0')) == kTrialSize && trial.flush();
    const bool noSpace = !written && failedForSpace(trial, kTrialSize);
    const QString reason = trial.errorString();
    if (opened)
        trial.remove();
    if (written)
        return {};
    if (noSpace)
        return {
            RenderErrorCode::kDiskFull,
            Texts::tr("The video cannot be written into \"%1\": the disk is full.").arg(m_folder)};
    return outputError(
        Texts::tr("The video cannot be written into \"%1\": %2.").arg(m_folder, reason));
}

RenderError OutputTarget::lock(const QString &lockFolder)
{
    const QString canonical = QFileInfo(m_folder).canonicalFilePath() + QLatin1Char('/') +
                              QFileInfo(m_fileName).fileName();
    Paths::ensureFolder(lockFolder);
    m_lock = std::make_unique<QLockFile>(
        QStringLiteral("%1/%2.lock").arg(lockFolder, QString::fromLatin1(hashOf(canonical))));
    m_lock->setStaleLockTime(0); // a render may take hours; only a dead owner makes a lock stale
    if (m_lock->tryLock(kLockPatience))
        return {};
    const QLockFile::LockError reason = m_lock->error();
    m_lock.reset();
    if (reason == QLockFile::LockFailedError)
        return {RenderErrorCode::kBusy,
                Texts::tr("Another render is writing \"%1\" at this time.").arg(m_fileName)};
    qCWarning(generatorLog) << "No lock could be made in" << lockFolder;
    return {};
}

void OutputTarget::removeStrays() const
{
    const QRegularExpression own(QStringLiteral("^%1[a-z0-9]{%2}(\\.part)?\\.%3$")
                                     .arg(QRegularExpression::escape(m_temporaryStem),
                                          QString::number(kRandomLetters), m_extension));
    QDir folder(m_folder);
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (own.match(name).hasMatch() && folder.remove(name))
            qCInfo(generatorLog) << "Removed the unfinished video" << folder.filePath(name);
    }
}

} // namespace velmora
