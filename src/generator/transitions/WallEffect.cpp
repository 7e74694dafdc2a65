// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/GeneratorLog.h"
#include "generator/transitions/Easing.h"
#include "generator/transitions/MosaicEffects.h"
#include "generator/transitions/PixelRows.h"

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

constexpr int kCourses = 12;
constexpr double kFlight = 0.18; ///< share of the transition that a brick is in the air
constexpr double kMortarFades = 0.8;

/// Courses of bricks twice as wide as tall; every other course is shifted by half a brick.
class Wall
{
public:
    explicit Wall(const QSize &frame)
        : m_frame(frame), m_courses(std::clamp(frame.height(), 1, kCourses)),
          m_bricks(std::clamp(static_cast<int>(std::lround(0.5 * m_courses * frame.width() /
                                                           std::max(1, frame.height()))),
                              1, std::max(1, frame.width() / 2)))
    {
    }
    int courses() const { return m_courses; }
    /// A shifted course begins and ends with half a brick.
    int bricks(int course) const { return m_bricks + (course % 2); }

    /// Courses are counted from the ground.
    QRect brick(int course, int index) const
    {
        const double shift = course % 2 == 0 ? 0 : 0.5;
        const int left = column(index - shift);
        const int top = row(m_courses - 1 - course);
        return QRect(left, top, column(index + 1 - shift) - left, row(m_courses - course) - top);
    }

private:
    int column(double brick) const
    {
        return std::clamp(static_cast<int>(std::lround(m_frame.width() * brick / m_bricks)), 0,
                          m_frame.width());
    }
    int row(int course) const
    {
        return static_cast<int>(static_cast<qint64>(m_frame.height()) * course / m_courses);
    }

    QSize m_frame;
    int m_courses;
    int m_bricks;
};

/// Lets the edges of a laid brick catch the light from above; @p depth from 0 (flat) to 1.
void bevel(const TargetArea &brick, double depth)
{
    const int thickness = std::max(1, brick.height / 20);
    if (brick.height < 4 * thickness || brick.width < 4 * thickness)
        return;
    const int dark = weightOf(1 - 0.55 * depth);
    const int bright = weightOf(1 - 0.35 * depth);
    for (int y = 0; y < brick.height; ++y) {
        QRgb *row = brick.row(y);
        if (y >= brick.height - thickness)
            darkenRow(row, row, brick.width, dark);
        else if (y < thickness)
            whitenRow(row, row, brick.width, bright);
        else
            whitenRow(row, row, thickness, bright);
        if (y >= thickness && y < brick.height - thickness)
            darkenRow(row + brick.width - thickness, row + brick.width - thickness, thickness,
                      dark);
    }
}

/// Falls from above its place, faster and faster, while it becomes visible.
void dropBrick(const EffectFrame &frame, const QRect &brick, double t, double depth)
{
    const double height = 0.28 * frame.target.height + brick.height();
    const int lift = static_cast<int>(std::lround(height * (1 - t * t)));
    const QRect falling = brick.translated(0, -lift).intersected(frame.target.rect());
    if (falling.isEmpty())
        return;
    const QRect seen = falling.translated(0, lift);
    const TargetArea target = frame.target.cut(falling);
    const SourceArea source = frame.to.cut(seen);
    const int opacity = weightOf(easing::within(t, 0, 0.4));
    for (int y = 0; y < target.height; ++y)
        mixRow(target.row(y), target.row(y), source.row(y), target.width, opacity);
    bevel(target, depth * easing::within(t, 0, 0.4));
}

} // namespace

void composeMosaicWall(const EffectFrame &frame)
{
    const Wall wall(frame.target.rect().size());
    copyArea(frame.target, frame.from);
    const double progress = frame.progress();
    const double depth = 1 - easing::inOut(easing::within(progress, kMortarFades, 1));
    QPoint newest;
    for (int course = 0; course < wall.courses(); ++course) {
        const int bricks = wall.bricks(course);
        for (int i = 0; i < bricks; ++i) {
            // The bricklayer goes to and fro.
            const int index = course % 2 == 0 ? i : bricks - 1 - i;
            const double laid = (course + static_cast<double>(i) / bricks) / wall.courses();
            const double begin = laid * (1 - kFlight);
            const double t = easing::within(progress, begin, begin + kFlight);
            const QRect brick = wall.brick(course, index);
            if (t <= 0 || brick.isEmpty())
                continue;
            newest = QPoint(index, course);
            if (t < 1) {
                dropBrick(frame, brick, t, depth);
                continue;
            }
            copyArea(frame.target.cut(brick), frame.to.cut(brick));
            bevel(frame.target.cut(brick), depth);
        }
    }
    qCDebug(generatorLog).nospace()
        << "Frame #" << frame.frame << " cols=" << wall.bricks(0) << ", rows=" << wall.courses()
        << ", col=" << newest.x() << ", row=" << newest.y();
}

} // namespace velmora
