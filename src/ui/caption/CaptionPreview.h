// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/caption/CaptionPictureMaker.h"

#include <QImage>
#include <QWidget>

namespace velmora
{

/// Shows a slide with its caption as it will be in the video. Painting is done on another thread.
/// GUI thread.
class CaptionPreview : public QWidget
{
    Q_OBJECT
public:
    explicit CaptionPreview(QWidget *parent = nullptr);

    /// Shows what is asked for; the size is filled in here, and followed when it changes.
    void setSubject(const CaptionPictureRequest &request);
    /// Shows nothing.
    void clear();

    const QImage &picture() const { return m_picture; }
    QRect pictureRect() const;
    /// Why there is no picture; empty while there is one, or it is in the making.
    const QString &error() const { return m_error; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void pictureChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ask(bool play);
    void onPictureReady(const QImage &picture, const QString &error);

    CaptionPictureRequest m_request;
    bool m_isClear = true;
    QImage m_picture;
    QString m_error;
    CaptionPictureMaker m_maker;
};

} // namespace velmora
