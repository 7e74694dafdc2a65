// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

namespace Ui
{
class CreatePanel;
}

namespace velmora
{

class Composer;

/// What the page of a render says: how far it is, how long it will take, what goes on. GUI thread.
class ProgressPage
{
    Q_DECLARE_TR_FUNCTIONS(velmora::ProgressPage)
public:
    /// The page is the one in @p form; both must outlive the object.
    ProgressPage(Ui::CreatePanel &form, const Composer &composer);

    void retranslate();
    /// The render of a video of @p videoLength ms begins.
    void begin(qint64 videoLength);
    void setPercent(int percent);
    /// Whether the frames are done and the file is put together.
    bool isFinal() const;
    void showTimes();
    void showState();
    /// The pause button follows the composer.
    void showPaused();
    /// The video is there, and nothing can be stopped any more.
    void end();

private:
    void setCanBeStopped(bool can);
    QString state() const;

    Ui::CreatePanel &m_form;
    const Composer &m_composer;
    qint64 m_videoLength = 0; ///< ms
};

} // namespace velmora
