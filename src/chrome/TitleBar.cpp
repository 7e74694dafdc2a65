// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/TitleBar.h"

#include "chrome/SystemDrag.h"
#include "chrome/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kIconSize = 20;   // px
constexpr int kButtonIcon = 16; // px

} // namespace

TitleBar::TitleBar(Buttons buttons, QWidget *parent)
    : QFrame(parent), m_layout(new QHBoxLayout(this)), m_icon(new QLabel(this)),
      m_title(new QLabel(this))
{
    setObjectName(QStringLiteral("titleBar"));
    setFixedHeight(Height);
    m_icon->setObjectName(QStringLiteral("titleIcon"));
    m_title->setObjectName(QStringLiteral("titleText"));
    m_title->setTextFormat(Qt::PlainText);
    // A long title must not keep the window from becoming narrow.
    m_title->setMinimumWidth(1);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    m_title->installEventFilter(this);

    m_layout->setContentsMargins(12, 0, 6, 0);
    m_layout->setSpacing(2);
    m_layout->addWidget(m_icon);
    m_layout->addSpacing(6);
    m_layout->addWidget(m_title, 1);
    if (buttons == Buttons::All) {
        m_minimise = addButton("btnMinimise", QStringLiteral("window-minimise"));
        m_maximise = addButton("btnMaximise", QStringLiteral("window-maximise"));
        connect(m_minimise, &QToolButton::clicked, this, &TitleBar::minimiseRequested);
        connect(m_maximise, &QToolButton::clicked, this, &TitleBar::maximiseRequested);
    } else {
        m_icon->hide();
    }
    m_close = addButton("btnCloseTop", QStringLiteral("window-close"));
    QIcon close = Theme::icon(QStringLiteral("window-close"));
    close.addFile(QStringLiteral(":/images/images/window-close-white.png"), {}, QIcon::Active);
    m_close->setIcon(close);
    connect(m_close, &QToolButton::clicked, this, &TitleBar::closeRequested);

    window()->installEventFilter(this);
    retranslate();
    updateIcon();
    updateTitle();
    updateState();
}

void TitleBar::addWidget(QWidget *widget)
{
    const int buttons = m_minimise ? 3 : 1;
    m_layout->insertWidget(m_layout->count() - buttons, widget);
}

QString TitleBar::title() const
{
    return m_title->text();
}

QToolButton *TitleBar::addButton(const char *name, const QString &icon)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(Theme::icon(icon));
    button->setIconSize({kButtonIcon, kButtonIcon});
    button->setFixedSize(36, 28);
    button->setAutoRaise(true);
    // As in other title bars: the keyboard has the window menu and its shortcuts for these.
    button->setFocusPolicy(Qt::NoFocus);
    m_layout->addWidget(button);
    return button;
}

void TitleBar::retranslate()
{
    const auto name = [](QToolButton *button, const QString &text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_close, tr("Close"));
    if (m_minimise)
        name(m_minimise, tr("Minimize"));
    if (m_maximise)
        name(m_maximise, window()->isMaximized() ? tr("Restore") : tr("Maximize"));
}

void TitleBar::updateIcon()
{
    QIcon icon = window()->windowIcon();
    m_icon->setPixmap(icon.pixmap(window()->windowHandle(), {kIconSize, kIconSize}));
}

/// A name that is too long gives way, rather than the mark of unsaved changes behind it.
void TitleBar::updateTitle()
{
    const QString title = window()->windowTitle();
    const QString place = QStringLiteral("[*]");
    const int end = std::max(0, title.indexOf(place));
    QString rest = title.mid(end);
    rest.replace(place, window()->isWindowModified() ? QStringLiteral("*") : QString());
    const QFontMetrics metrics = m_title->fontMetrics();
    const QString name = title.left(end);
    const QString shown = metrics.elidedText(
        name, Qt::ElideMiddle, m_title->contentsRect().width() - metrics.horizontalAdvance(rest));
    m_title->setText(shown + rest);
    m_title->setToolTip(shown == name ? QString() : name + rest);
}

void TitleBar::updateState()
{
    if (!m_maximise)
        return;
    const bool maximised = window()->isMaximized();
    m_maximise->setIcon(Theme::icon(maximised ? QStringLiteral("window-restore")
                                              : QStringLiteral("window-maximise")));
    retranslate();
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window()) {
        switch (event->type()) {
        case QEvent::WindowTitleChange:
        case QEvent::ModifiedChange:
            updateTitle();
            break;
        case QEvent::WindowIconChange:
        case QEvent::ScreenChangeInternal:
            updateIcon();
            break;
        case QEvent::WindowStateChange:
            updateState();
            break;
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
            m_title->setEnabled(event->type() == QEvent::WindowActivate);
            break;
        default:
            break;
        }
    }
    if (watched == m_title &&
        (event->type() == QEvent::Resize || event->type() == QEvent::FontChange))
        updateTitle();
    return QFrame::eventFilter(watched, event);
}

void TitleBar::mousePressEvent(QMouseEvent *event)
{
    m_dragging = event->button() == Qt::LeftButton;
    m_pressed = event->globalPos();
    m_windowStart = window()->pos();
}

void TitleBar::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = event->globalPos() - m_pressed;
    m_dragging = m_dragging && event->buttons().testFlag(Qt::LeftButton);
    // Only a real movement starts the move, or the window system would swallow double clicks.
    if (!m_dragging || way.manhattanLength() < QApplication::startDragDistance())
        return;
    if (SystemDrag::move(*window()))
        m_dragging = false;
    else if (!window()->isMaximized())
        window()->move(m_windowStart + way);
}

void TitleBar::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_dragging = false;
    if (event->button() == Qt::LeftButton && m_maximise)
        emit maximiseRequested();
}

void TitleBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

} // namespace velmora
