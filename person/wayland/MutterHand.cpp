// SPDX-License-Identifier: MIT

#include "person/wayland/MutterHand.h"

#include "person/Screen.h"
#include "person/UserInterface.h"
#include "person/gtk/keysymOf.h"
#include "person/openDialog.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <thread>

#include <gtk/gtk.h>
#include <linux/input-event-codes.h>
#include <wx/utils.h>

namespace {

constexpr const char *service = "org.gnome.Mutter.RemoteDesktop";

/// `result`, which is null if there was an error.
template <typename Result>
Result *resultOf(Result *result, GError *error) {
    if (result == nullptr) {
        const std::string reason = error->message;
        g_error_free(error);
        throw GivenUp(reason);
    }
    return result;
}

/// Calls `method` and returns its answer; the caller frees it.
GVariant *ask(GDBusProxy *proxy, const char *method, GVariant *arguments = nullptr) {
    GError *error = nullptr;
    GVariant *answer = g_dbus_proxy_call_sync(proxy, method, arguments, G_DBUS_CALL_FLAGS_NONE, -1,
                                              nullptr, &error);
    return resultOf(answer, error);
}

void tell(GDBusProxy *proxy, const char *method, GVariant *arguments = nullptr) {
    g_variant_unref(ask(proxy, method, arguments));
}

GDBusProxy *proxyOf(const char *path, const char *interface) {
    GError *error = nullptr;
    GDBusProxy *proxy =
        g_dbus_proxy_new_for_bus_sync(G_BUS_TYPE_SESSION, G_DBUS_PROXY_FLAGS_NONE, nullptr, service,
                                      path, interface, nullptr, &error);
    return resultOf(proxy, error);
}

/// The pointer's place in the dialog's client area, if the dialog knows it.
std::optional<wxPoint> pointerInDialog() {
    GdkWindow *dialog = gtk_widget_get_window(openDialog().GetHandle());
    GdkDevice *pointer =
        gdk_seat_get_pointer(gdk_display_get_default_seat(gdk_display_get_default()));
    GdkWindow *under = gdk_device_get_window_at_position(pointer, nullptr, nullptr);
    if (under == nullptr || gdk_window_get_effective_toplevel(under) != dialog) {
        return std::nullopt;
    }
    return openDialog().ScreenToClient(wxGetMousePosition());
}

bool isButtonDown(int button) {
    const wxMouseState state = wxGetMouseState();
    return button == 1   ? state.LeftIsDown()
           : button == 2 ? state.MiddleIsDown()
                         : state.RightIsDown();
}

/// Waits until the program has seen the hand's input, since the compositor does not report when it
/// has passed it on. Not for long: the program never sees input that goes to a drag or that closed
/// its window. Returns whether it has seen it.
bool waitUntilSeen(const std::function<bool()> &isSeen,
                   std::chrono::milliseconds patience = std::chrono::milliseconds(500)) {
    const auto end = std::chrono::steady_clock::now() + patience;
    bool wasSeen = false;
    const auto isSettled = [&] {
        wasSeen = isDialogOpen() && isSeen();
        return wasSeen || !isDialogOpen() || isDragRunning();
    };
    while (!read(isSettled) && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return wasSeen;
}

} // namespace

MutterHand::MutterHand() {
    GDBusProxy *desktop = proxyOf("/org/gnome/Mutter/RemoteDesktop", service);
    GVariant *created = ask(desktop, "CreateSession");
    const char *path = nullptr;
    g_variant_get(created, "(&o)", &path);
    m_session = proxyOf(path, "org.gnome.Mutter.RemoteDesktop.Session");
    g_variant_unref(created);
    g_object_unref(desktop);
    tell(m_session, "Start");
    m_screen = read(wxGetDisplaySize);
    // A move longer than the screen ends in its corner, wherever the pointer was.
    m_pointer = wxPoint(m_screen.x, m_screen.y);
    moveOnScreen(wxPoint(0, 0));
    // A screen without a keyboard gives no window the focus; the first key adds a keyboard.
    MutterHand::setKey(WXK_SHIFT, true);
    MutterHand::setKey(WXK_SHIFT, false);
}

MutterHand::~MutterHand() {
    try {
        tell(m_session, "Stop");
    } catch (const GivenUp &) {
        // The screen ended before the hand.
    }
    g_object_unref(m_session);
}

// Programs don't learn where their windows are. The dialog's place follows from the pointer, whose
// place is known on the screen and, some time after each move, in the dialog: unequal steps must
// give the same answer several times in a row. They begin in the middle of the screen. The slower
// the compositor, the longer each step waits.
void MutterHand::findDialog() {
    std::chrono::milliseconds patience(10);
    int steps = 0;
    int misses = 0;
    int equal = 0;
    poll("the pointer is over the dialog", [&] {
        ++steps;
        const int region = misses / 3;
        moveOnScreen(wxPoint((m_screen.x / 2 + 330 * region) % m_screen.x + 7 * steps * steps % 30,
                             (m_screen.y / 2 + 70 * region) % m_screen.y + 5 * steps * steps % 20));
        if (waitUntilSeen([&] { return pointerInDialog() == m_pointer - m_dialog; }, patience)) {
            return ++equal == 3;
        }
        equal = 0;
        patience = std::min(patience * 2, std::chrono::milliseconds(250));
        if (const std::optional<wxPoint> inDialog = read(pointerInDialog)) {
            m_dialog = m_pointer - *inDialog;
        } else {
            ++misses;
        }
        return false;
    });
}

void MutterHand::moveTo(wxPoint point) {
    moveOnScreen(m_dialog + point);
    waitUntilSeen([point] { return pointerInDialog() == point; });
}

// The edges of the screen stop the pointer.
void MutterHand::moveOnScreen(wxPoint point) {
    point.x = std::clamp(point.x, 0, m_screen.x - 1);
    point.y = std::clamp(point.y, 0, m_screen.y - 1);
    const wxPoint way = point - m_pointer;
    tell(m_session, "NotifyPointerMotionRelative",
         g_variant_new("(dd)", static_cast<double>(way.x), static_cast<double>(way.y)));
    m_pointer = point;
}

void MutterHand::setButton(int button, bool isDown) {
    if (button == 4 || button == 5) {
        if (isDown) {
            tell(m_session, "NotifyPointerAxisDiscrete",
                 g_variant_new("(ui)", 0U, button == 4 ? -1 : 1));
        }
        return;
    }
    static const std::map<int, int> codes = {{1, BTN_LEFT}, {2, BTN_MIDDLE}, {3, BTN_RIGHT}};
    tell(m_session, "NotifyPointerButton", g_variant_new("(ib)", codes.at(button), isDown));
    waitUntilSeen([=] { return isButtonDown(button) == isDown; });
}

void MutterHand::setKey(int key, bool isDown) {
    tell(m_session, "NotifyKeyboardKeysym", g_variant_new("(ub)", keysymOf(key), isDown));
    if (key == WXK_SHIFT || key == WXK_CONTROL) {
        waitUntilSeen([=] { return wxGetKeyState(static_cast<wxKeyCode>(key)) == isDown; });
    }
}
