// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/InputCheck.h"

#include "generator/media/SoundChecker.h"
#include "generator/pipeline/RenderFailure.h"
#include "project/documents/ProjectFile.h"
#include "project/images/ImageLoader.h"
#include "project/slides/ProjectItemSimple.h"

#include <QCoreApplication>
#include <QSet>
#include <QStringList>
#include <QThreadPool>
#include <QVector>
#include <QtConcurrent>

namespace velmora
{

namespace
{

constexpr int kThreads = 2;          // a picture without scaled decoding needs much memory
constexpr int kLongestText = 16'000; // characters; the message must stay readable

struct Check {
    QString path;
    bool isSound;
    QString sentence; ///< What is wrong; empty when fine.
};

QVector<Check> filesOf(const ProjectFile &project)
{
    QVector<Check> checks;
    QSet<QString> seen;
    const auto add = [&](const QString &path, bool isSound) {
        if (!seen.contains(path))
            checks.append({path, isSound, {}});
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
    QVector<Check> checks = filesOf(project);
    QThreadPool pool;
    pool.setMaxThreadCount(kThreads);
    for (Check &check : checks) {
        QtConcurrent::run(&pool, [&check, &cancelled] {
            if (!cancelled)
                look(check);
        });
    }
    pool.waitForDone();
    QStringList sentences;
    for (const Check &check : checks) {
        if (!check.sentence.isEmpty())
            sentences.append(check.sentence);
    }
    if (sentences.isEmpty())
        return {};
    return {RenderErrorCode::kInput, joined(sentences)};
}

} // namespace velmora
