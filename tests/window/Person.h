#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include <X11/keysym.h>
#include <wx/gdicmn.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>

// The rest of the X11 headers defines macros that do not go with the other headers of a test.
struct _XDisplay;
using KeySym = unsigned long;
using Window = unsigned long;

/// Thrown when what a person waits for does not come.
struct GivenUp : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Runs `work` on the user-interface thread, behind all input that the screen has delivered so far,
/// and waits for it.
void onUserInterface(const std::function<void()> &work);

/// What `work` returns on the user-interface thread.
template <typename Work>
auto read(Work work) {
    decltype(work()) result{};
    onUserInterface([&] { result = work(); });
    return result;
}

/// Polls `isSo` until it holds; gives up at a generous deadline.
void poll(const std::string &expected, const std::function<bool()> &isSo);

/// The same on the user-interface thread.
void waitUntil(const std::string &expected, const std::function<bool()> &isSo);

/// The two lists of the dialog that is open; to be used on the user-interface thread.
wxListBox &fileList();
wxListCtrl &matchList();

/// The native window of the dialog, or 0 while none is shown and active.
Window windowOfDialog();

/// A person at the screen: a real pointer and real keys, on a thread of its own. Controls are found
/// by their identifiers and rows by their numbers, and all are reached by the pointer.
class Person {
public:
    Person();
    ~Person();
    Person(const Person &) = delete;
    Person &operator=(const Person &) = delete;

    void moveTo(wxPoint point);

    /// Moves to `point` and stays there with a hand's small movements until `isSo` holds on the
    /// user-interface thread: the toolkit drops a move that comes while it handles another.
    void hoverAt(wxPoint point, const std::string &expected, const std::function<bool()> &isSo);

    void press(unsigned button = 1);
    void release(unsigned button = 1);
    void click(wxPoint point);
    void click(int controlId) { click(middleOf(controlId)); }

    /// Presses at `from`, waits for the drag to begin, and moves on to `to` in a few steps; then
    /// the button is still down.
    void dragTo(wxPoint from, wxPoint to);

    /// Releases the button and waits for the end of the drag.
    void drop();

    /// Both in one.
    void drag(wxPoint from, wxPoint to);

    void keyDown(KeySym key);
    void keyUp(KeySym key);
    void strike(KeySym key);

    /// Replaces the content of the delimiter field by one character.
    void typeDelimiter(char character);

    /// Waits until the dialog stands on the screen and its controls have their places.
    void waitForDialog();

    static wxPoint middleOf(int controlId);
    static wxPoint fileRow(int row);
    static wxPoint matchRow(int row);

    /// A place in the list beside its entries: below the last one.
    static wxPoint belowFileRows();
    static wxPoint belowMatchRows();

    /// The place and size of the window's frame, as the window manager has drawn it.
    wxRect frameOf(Window window);

private:
    void send();

    _XDisplay *m_display;
};
