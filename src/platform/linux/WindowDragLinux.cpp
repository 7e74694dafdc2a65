// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WindowDrag.h"

#include <QGuiApplication>
#include <QWindow>
#include <QX11Info>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace velmora
{

namespace
{

constexpr char kMoveResize[] = "_NET_WM_MOVERESIZE";
constexpr uint32_t kCancel = 11;

xcb_window_t rootWindow()
{
    return static_cast<xcb_window_t>(QX11Info::appRootWindow());
}

template <typename Reply> using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

} // namespace

bool WindowDrag::isButtonHeld()
{
    // Wayland's compositor itself refuses to drag a window once the button is up.
    if (!QX11Info::isPlatformX11())
        return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    xcb_connection_t *x = QX11Info::connection();
    const auto asked = xcb_query_pointer(x, rootWindow());
    const ReplyPointer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(x, asked, nullptr),
                                                        &std::free);
    return reply && (reply->mask & XCB_BUTTON_MASK_1);
}

void WindowDrag::end(QWindow &window)
{
    if (!QX11Info::isPlatformX11())
        return;
    xcb_connection_t *x = QX11Info::connection();
    const auto asked = xcb_intern_atom(x, true, sizeof(kMoveResize) - 1, kMoveResize);
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, asked, nullptr),
                                                      &std::free);
    if (!reply)
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = reply->atom;
    message.data.data32[2] = kCancel;
    xcb_send_event(x, false, rootWindow(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(x);
}

} // namespace velmora
