// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/InputCheck.h"

#include "generator/media/SoundChecker.h"
#include "generator/pipeline/RenderFailure.h"
#include "platform/FileNames.h"
#include "project/documents/ProjectFile.h"
#include "project/images/ImageLoader.h"
#include "project/slides/ProjectItemSimple.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

#include <thread>
#include <vector>

namespace velmora
{

namespace
{

constexpr int kLongestText = 16000; // characters; the message must stay readable

struct Check {
    QString path;
    bool isSound;
    QString sentence; ///< What is wrong; empty when fine.
};

std::vector<Check> filesOf(const ProjectFile &project)
{
    std::vector<Check> checks;
    QSet<QString> seen;
    const auto add = [&](const QString &path, bool isSound) {
        if (!seen.contains(path))
            checks.push_back({path, isSound, {}});
        seen.insert(path);
    };
    for (const ProjectItem *item : project.items()) {
        const auto *photo = qobject_cast<const ProjectItemSimple *>(item);
        if (photo && photo->isShown())
            add(photo->fileName(), false);
    }
    for (const AudioItem &sound : project.audio().items)
        add(sound.fileName, true);
    return checks;
}

void look(Check &check)
{
    const QString reason =
        check.isSound ? checkSoundFile(check.path) : ImageLoader::check(check.path);
    if (!reason.isEmpty())
        check.sentence = check.isSound ? RenderFailure::soundText(check.path, reason)
                                       : RenderFailure::photoText(check.path, reason);
}

QString joined(const QStringList &sentences)
{
    QStringList shown;
    int length = 0;
    for (const QString &sentence : sentences) {
        length += sentence.size() + 1;
        if (length > kLongestText)
            break;
        shown.append(sentence);
    }
    const int left = sentences.size() - shown.size();
    if (left > 0)
        shown.append(QCoreApplication::translate("velmora::InputCheck",
                                                 "%n more file(s) cannot be used.", nullptr, left));
    return shown.join(QLatin1Char('\n'));
}

} // namespace

RenderError InputCheck::run(const ProjectFile &project, const std::atomic_bool &cancelled)
{
    std::vector<Check> checks = filesOf(project);
    std::atomic_size_t next{0};
    const auto work = [&] {
        for (size_t i = next++; i < checks.size() && !cancelled; i = next++)
            look(checks[i]);
    };
    std::thread helper(work);
    work();
    helper.join();
    QStringList sentences;
    for (const Check &check : checks) {
        if (!check.sentence.isEmpty())
            sentences.append(check.sentence);
    }
    if (sentences.isEmpty())
        return {};
    return {RenderErrorCode::kInput, joined(sentences)};
}

RenderError InputCheck::refuseReplacing(const ProjectFile &project, const QString &video)
{
    const QString replaced = QFileInfo(video).canonicalFilePath();
    if (replaced.isEmpty()) // It does not exist yet.
        return {};
    for (const Check &check : filesOf(project)) {
        const QString input = QFileInfo(check.path).canonicalFilePath();
        if (FileNames::identity(input) == FileNames::identity(replaced))
            return {RenderErrorCode::kOutput,
                    QCoreApplication::translate("velmora::InputCheck",
                                                "The video would replace \"%1\", of which it is "
                                                "made. Please choose another name.")
                        .arg(QDir::toNativeSeparators(check.path))};
    }
    return {};
}

} // namespace velmora
