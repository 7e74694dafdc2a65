// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideOrder.h"

#include "project/documents/MediaSuffixes.h"
#include "project/slides/ProjectItemSimple.h"

#include <QHash>
#include <QRandomGenerator>

#include <algorithm>
#include <functional>

namespace velmora
{

namespace
{

using Slides = ProjectEditor::Slides;

const ProjectItemSimple *photoOf(const ProjectItem *slide)
{
    return qobject_cast<const ProjectItemSimple *>(slide);
}

/// Applies @p change to the photo slides, which follow the title slide.
template <typename Change> Slides changed(Slides slides, Change change)
{
    const auto photos =
        std::stable_partition(slides.begin(), slides.end(),
                              [](const ProjectItem *slide) { return photoOf(slide) == nullptr; });
    change(photos, slides.end());
    return slides;
}

/// Sorts by a key that is made once for each slide.
template <typename Key, typename Less>
Slides sorted(const Slides &slides, const std::function<Key(const QString &)> &keyOf, Less less)
{
    QHash<const ProjectItem *, Key> keys;
    for (const ProjectItem *slide : slides) {
        if (const ProjectItemSimple *photo = photoOf(slide))
            keys.insert(slide, keyOf(photo->fileName()));
    }
    return changed(slides, [&](auto begin, auto end) {
        std::stable_sort(begin, end, [&](const ProjectItem *a, const ProjectItem *b) {
            return less(*keys.constFind(a), *keys.constFind(b));
        });
    });
}

} // namespace

Slides SlideOrder::byName(const Slides &slides, Direction direction)
{
    QStringList paths;
    for (const ProjectItem *slide : slides) {
        if (const ProjectItemSimple *photo = photoOf(slide))
            paths.append(photo->fileName());
    }
    sortNaturally(&paths);
    QHash<QString, int> ranks;
    for (const QString &path : qAsConst(paths))
        ranks.insert(path, ranks.size());
    const bool ascending = direction == Direction::Ascending;
    return sorted<int>(
        slides, [&](const QString &path) { return ranks.value(path); },
        [ascending](int a, int b) { return ascending ? a < b : b < a; });
}

Slides SlideOrder::byDate(const Slides &slides, const PhotoDates::Dates &dates, Direction direction)
{
    const bool ascending = direction == Direction::Ascending;
    return sorted<QDateTime>(
        slides, [&](const QString &path) { return dates.value(path); },
        [&](const QDateTime &a, const QDateTime &b) {
            if (a.isValid() != b.isValid())
                return a.isValid();
            return ascending ? a < b : b < a;
        });
}

Slides SlideOrder::shuffled(const Slides &slides, QRandomGenerator &random)
{
    return changed(slides, [&random](auto begin, auto end) { std::shuffle(begin, end, random); });
}

} // namespace velmora
