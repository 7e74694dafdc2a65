// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/PhotoDates.h"
#include "ui/model/ProjectEditor.h"

class QRandomGenerator;

namespace velmora
{

/// Orders of all slides for ProjectEditor::setOrder(). The title slide keeps its place, and slides
/// that compare equal keep their order. Pure functions.
namespace SlideOrder
{

enum class Direction { Ascending, Descending };

/// By file name as people count: "img2" before "img10".
ProjectEditor::Slides byName(const ProjectEditor::Slides &slides, Direction direction);
/// Photos without a date come last.
ProjectEditor::Slides byDate(const ProjectEditor::Slides &slides, const PhotoDates::Dates &dates,
                             Direction direction);
ProjectEditor::Slides shuffled(const ProjectEditor::Slides &slides, QRandomGenerator &random);

} // namespace SlideOrder

} // namespace velmora
