// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/UploadServiceMenu.h"

#include "chrome/Theme.h"
#include "services/MetricSender.h"
#include "sharing/upload/UploadServices.h"
#include "sharing/upload/UploaderFactory.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace velmora
{

UploadServiceMenu::UploadServiceMenu(QWidget *parent) : QFrame(parent, Qt::Popup)
{
    setObjectName(QStringLiteral("uploadServiceMenu"));
    setAccessibleName(tr("Services"));
    setProperty("popupMenu", true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(0);
    for (const UploadService &service : uploadServices()) {
        auto *button = new QPushButton(Theme::icon(service.iconName), service.buttonText, this);
        button->setObjectName(service.key);
        button->setProperty("menuEntry", true);
        button->setProperty("flat", true);
        button->setIconSize({24, 24});
        button->setAutoDefault(false);
        button->setToolTip(uploadHindrance());
        connect(button, &QPushButton::clicked, this, [this, key = service.key] {
            close();
            MetricSender::instance().record(QStringLiteral("upld"), key);
            emit uploadService(key);
        });
        layout->addWidget(button);
    }
}

void UploadServiceMenu::popUp(const QWidget &button)
{
    setMinimumWidth(button.width());
    adjustSize();
    // The button stands at the window's right edge.
    const int left = button.width() - width();
    QPoint corner = button.mapToGlobal(QPoint(left, -height() - 4));
    const QRect screen = button.screen()->availableGeometry();
    if (corner.y() < screen.top())
        corner = button.mapToGlobal(QPoint(left, button.height() + 4));
    corner.setX(qBound(screen.left(), corner.x(), screen.right() - width()));
    move(corner);
    show();
    findChild<QPushButton *>()->setFocus(Qt::PopupFocusReason);
}

void UploadServiceMenu::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Down:
        focusNextPrevChild(true);
        break;
    case Qt::Key_Up:
        focusNextPrevChild(false);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

} // namespace velmora
