// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewWidget.h"

#include "ui/model/ProjectEditor.h"

namespace velmora
{

PreviewWidget::PreviewWidget(ProjectEditor &, const AppSettings &, QWidget *parent)
    : QWidget(parent), m_player(nullptr)
{
}

PreviewWidget::~PreviewWidget() = default;

bool PreviewWidget::isPlaying() const
{
    return false;
}

void PreviewWidget::setSlide(ProjectItem *)
{
}

void PreviewWidget::previewSlide()
{
}

void PreviewWidget::playFull()
{
}

void PreviewWidget::stop()
{
}

} // namespace velmora
