// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

namespace velmora
{

/// A small popup that offers the upload services. Closes when one is chosen, by Escape and by a
/// click elsewhere. GUI thread.
class UploadServiceMenu : public QFrame
{
    Q_OBJECT
public:
    explicit UploadServiceMenu(QWidget *parent = nullptr);

    /// Shows the menu along @p button, on the side where there is room for it.
    void popUp(const QWidget &button);

signals:
    void uploadService(const QString &serviceKey); ///< Once, when the user chose.

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace velmora
