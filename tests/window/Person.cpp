#include "Person.h"

#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

#include <gtk/gtk.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wxImportCSVDialog.h>

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <gdk/gdkx.h>

namespace {

struct Call {
    const std::function<void()> &work;
    std::promise<void> done;
};

gboolean carryOut(void *data) {
    auto &call = *static_cast<Call *>(data);
    call.work();
    call.done.set_value();
    return G_SOURCE_REMOVE;
}

wxWindow &control(int id) {
    return *wxWindow::FindWindowById(id);
}

} // namespace

void onUserInterface(const std::function<void()> &work) {
    Call call{work, {}};
    std::future<void> done = call.done.get_future();
    // Behind all that is due: input that the server has delivered is handled first.
    g_idle_add_full(G_PRIORITY_LOW + 50, carryOut, &call, nullptr);
    done.wait();
}

void poll(const std::string &expected, const std::function<bool()> &isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > end) {
            throw GivenUp("waited in vain until " + expected);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void waitUntil(const std::string &expected, const std::function<bool()> &isSo) {
    poll(expected, [&isSo] { return read(isSo); });
}

wxListBox &fileList() {
    return static_cast<wxListBox &>(control(wxImportCSVDialog::LISTBOX_FILE));
}

wxListCtrl &matchList() {
    return static_cast<wxListCtrl &>(control(wxImportCSVDialog::LISTBOX_MATCH));
}

Person::Person() : m_display(XOpenDisplay(nullptr)) {
    if (m_display == nullptr) {
        throw GivenUp("no display");
    }
}

Person::~Person() {
    XCloseDisplay(m_display);
}

// The server has carried an input out when it answers; the dialog may still have to see it.
void Person::send() {
    XSync(m_display, False);
}

void Person::moveTo(wxPoint point) {
    XTestFakeMotionEvent(m_display, -1, point.x, point.y, 0);
    send();
}

void Person::hoverAt(wxPoint point, const std::string &expected,
                     const std::function<bool()> &isSo) {
    moveTo(point);
    bool aside = false;
    poll(expected, [&] {
        if (read(isSo)) {
            return true;
        }
        aside = !aside;
        moveTo(point + wxSize(aside ? 1 : 0, 0));
        return false;
    });
}

void Person::press(unsigned button) {
    XTestFakeButtonEvent(m_display, button, True, 0);
    send();
}

void Person::release(unsigned button) {
    XTestFakeButtonEvent(m_display, button, False, 0);
    send();
}

void Person::click(wxPoint point) {
    moveTo(point);
    press();
    release();
}

namespace {

wxPoint lastDragMotion;

gboolean noteDragMotion(GSignalInvocationHint *, unsigned, const GValue *values, void *) {
    auto *widget = GTK_WIDGET(g_value_get_object(&values[0]));
    gdk_window_get_origin(gtk_widget_get_window(widget), &lastDragMotion.x, &lastDragMotion.y);
    lastDragMotion += wxPoint(g_value_get_int(&values[2]), g_value_get_int(&values[3]));
    return TRUE;
}

/// Has the place of every drag over a drop target noted from now on.
void watchDragMotions() {
    static const gulong hook = g_signal_add_emission_hook(
        g_signal_lookup("drag-motion", GTK_TYPE_WIDGET), 0, noteDragMotion, nullptr, nullptr);
    static_cast<void>(hook);
    lastDragMotion = wxPoint();
}

} // namespace

// A drag runs inside the handler of the move that began it.
void Person::dragTo(wxPoint from, wxPoint to) {
    moveTo(from);
    const int depth = read(g_main_depth);
    press();
    hoverAt(from + wxSize(1, 0), "the drag begins", [depth] { return g_main_depth() > depth; });
    onUserInterface(watchDragMotions);
    constexpr int steps = 4;
    for (int step = 1; step < steps; ++step) {
        moveTo(from + (to - from) * step / steps);
    }
    hoverAt(to, "the drag has come to its place",
            [to] { return lastDragMotion.y == to.y && std::abs(lastDragMotion.x - to.x) <= 1; });
}

void Person::drop() {
    release();
    waitUntil("the drag ends", [] { return g_main_depth() == 1; });
}

void Person::drag(wxPoint from, wxPoint to) {
    dragTo(from, to);
    drop();
}

void Person::keyDown(KeySym key) {
    XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, key), True, 0);
    send();
}

void Person::keyUp(KeySym key) {
    XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, key), False, 0);
    send();
}

void Person::strike(KeySym key) {
    const bool shifted =
        XkbKeycodeToKeysym(m_display, XKeysymToKeycode(m_display, key), 0, 0) != key;
    if (shifted) {
        keyDown(XK_Shift_L);
    }
    keyDown(key);
    keyUp(key);
    if (shifted) {
        keyUp(XK_Shift_L);
    }
}

void Person::typeDelimiter(char character) {
    click(wxImportCSVDialog::TXT_DELIMITER);
    waitUntil("the delimiter field has the focus",
              [] { return wxWindow::FindFocus() == &control(wxImportCSVDialog::TXT_DELIMITER); });
    keyDown(XK_Control_L);
    strike(XK_a);
    keyUp(XK_Control_L);
    strike(XK_Delete);
    waitUntil("the delimiter field is empty", [] {
        return static_cast<wxTextCtrl &>(control(wxImportCSVDialog::TXT_DELIMITER))
            .GetValue()
            .empty();
    });
    // In this range the numbers of keys and characters are the same.
    strike(static_cast<KeySym>(character));
    waitUntil("the delimiter is typed", [character] {
        return static_cast<wxTextCtrl &>(control(wxImportCSVDialog::TXT_DELIMITER)).GetValue() ==
               wxString(character);
    });
}

Window windowOfDialog() {
    return read([]() -> Window {
        auto *ok = wxWindow::FindWindowById(wxID_OK);
        if (ok == nullptr || gtk_widget_get_mapped(ok->GetHandle()) == FALSE ||
            !static_cast<wxTopLevelWindow *>(wxGetTopLevelParent(ok))->IsActive()) {
            return 0;
        }
        return gdk_x11_window_get_xid(gtk_widget_get_window(wxGetTopLevelParent(ok)->GetHandle()));
    });
}

void Person::waitForDialog() {
    poll("the dialog is shown and active", [] { return windowOfDialog() != 0; });
    // The window manager gives the frame its place and its size in steps.
    poll("its frame is complete", [this] {
        const wxRect frame = frameOf(windowOfDialog());
        return frame.GetPosition() == wxPoint(100, 100) && frame.width >= 100;
    });
}

namespace {

/// A place in a control that the dialog has laid out: when the frame gets its size, they follow.
wxPoint placeIn(int controlId, const std::function<wxPoint(const wxWindow &)> &place) {
    waitUntil("the control is laid out",
              [controlId] { return control(controlId).GetSize().y > 10; });
    return read([&] { return control(controlId).ClientToScreen(place(control(controlId))); });
}

} // namespace

wxPoint Person::middleOf(int controlId) {
    return placeIn(controlId, [](const wxWindow &window) {
        return wxPoint(window.GetSize().x / 2, window.GetSize().y / 2);
    });
}

wxPoint Person::fileRow(int row) {
    // A list box does not tell where its rows are, only which row is at a place, once it is drawn.
    const auto top = [row] {
        int y = 0;
        while (y < fileList().GetClientSize().y && fileList().HitTest(wxPoint(40, y)) != row) {
            ++y;
        }
        return y;
    };
    waitUntil("the row is in view", [top] { return top() < fileList().GetClientSize().y; });
    return placeIn(wxImportCSVDialog::LISTBOX_FILE,
                   [top](const wxWindow &) { return wxPoint(40, top() + 4); });
}

wxPoint Person::matchRow(int row) {
    return placeIn(wxImportCSVDialog::LISTBOX_MATCH, [row](const wxWindow &) {
        wxRect rect;
        matchList().GetItemRect(row, rect);
        return rect.GetPosition() + wxSize(60, rect.height / 2);
    });
}

wxPoint Person::belowFileRows() {
    return placeIn(wxImportCSVDialog::LISTBOX_FILE, [](const wxWindow &window) {
        return wxPoint(40, window.GetClientSize().y - 10);
    });
}

wxPoint Person::belowMatchRows() {
    return placeIn(wxImportCSVDialog::LISTBOX_MATCH, [](const wxWindow &window) {
        return wxPoint(60, window.GetClientSize().y - 10);
    });
}

wxRect Person::frameOf(Window window) {
    Window root = 0;
    Window parent = 0;
    Window *children = nullptr;
    unsigned count = 0;
    while (XQueryTree(m_display, window, &root, &parent, &children, &count) != 0 &&
           parent != root) {
        XFree(children);
        window = parent;
    }
    XFree(children);
    int x = 0;
    int y = 0;
    unsigned width = 0;
    unsigned height = 0;
    unsigned border = 0;
    unsigned depth = 0;
    XGetGeometry(m_display, window, &root, &x, &y, &width, &height, &border, &depth);
    return {x, y, static_cast<int>(width), static_cast<int>(height)};
}
