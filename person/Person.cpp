// SPDX-License-Identifier: MIT

#include "person/Person.h"

#include "person/openDialog.h"

#include <cstdlib>

#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>

Person::Person() : m_hand(makeHand()) {}

Person::~Person() {
    if (m_buttonDown != 0) {
        release(m_buttonDown);
    }
}

void Person::moveTo(wxPoint point) {
    m_hand->moveTo(point);
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

void Person::press(int button) {
    m_buttonDown = button;
    m_hand->setButton(button, true);
}

void Person::release(int button) {
    m_buttonDown = 0;
    m_hand->setButton(button, false);
}

void Person::click(wxPoint point, int button) {
    moveTo(point);
    press(button);
    release(button);
}

void Person::dragTo(wxPoint from, wxPoint to) {
    moveTo(from);
    press();
    hoverAt(from + wxSize(1, 0), "the drag begins", isDragRunning);
    constexpr int steps = 4;
    for (int step = 1; step < steps; ++step) {
        moveTo(from + (to - from) * step / steps);
    }
    hoverAt(to, "the drag has come to its place", [to] {
        const auto place = placeOfDrag();
        return place && place->y == to.y && std::abs(place->x - to.x) <= 1;
    });
}

void Person::drop() {
    release();
    waitUntil("the drag ends", [] { return !isDragRunning(); });
}

void Person::drag(wxPoint from, wxPoint to) {
    dragTo(from, to);
    drop();
}

void Person::keyDown(int key) {
    m_hand->setKey(key, true);
}

void Person::keyUp(int key) {
    m_hand->setKey(key, false);
}

void Person::strike(int key) {
    keyDown(key);
    keyUp(key);
}

void Person::strikeWith(int modifier, int key) {
    keyDown(modifier);
    strike(key);
    keyUp(modifier);
}

namespace {

wxTextCtrl &delimiterField() {
    return control<wxTextCtrl>(wxImportCSVDialog::TXT_DELIMITER);
}

} // namespace

void Person::emptyDelimiter() {
    click(wxImportCSVDialog::TXT_DELIMITER);
    waitUntil("the delimiter field has the focus",
              [] { return wxWindow::FindFocus() == &delimiterField(); });
    strike(WXK_HOME);
    strike(WXK_DELETE);
    waitUntil("the delimiter field is empty", [] { return delimiterField().GetValue().empty(); });
}

void Person::typeDelimiter(char character) {
    emptyDelimiter();
    strike(character);
    waitUntil("the delimiter is typed",
              [character] { return delimiterField().GetValue() == wxString(character); });
}

void Person::waitForDialog() {
    poll("the dialog is ready", [] { return read(isDialogReady); });
    onUserInterface(allowSlowDoubleClicks);
    m_hand->findDialog();
}

namespace {

/// A place in a control, once the dialog has laid it out: the controls follow when the frame gets
/// its size.
wxPoint placeIn(int controlId, const std::function<wxPoint(const wxWindow &)> &place) {
    waitUntil("the control is laid out",
              [controlId] { return control(controlId).GetSize().y > 10; });
    return read([&] {
        const wxWindow &window = control(controlId);
        return openDialog().ScreenToClient(window.ClientToScreen(place(window)));
    });
}

} // namespace

wxPoint Person::middleOf(int controlId) {
    return placeIn(controlId, [](const wxWindow &window) {
        return wxPoint(window.GetSize().x / 2, window.GetSize().y / 2);
    });
}

wxPoint Person::fileRow(int row) {
    // A list box only reports which row is at a place, not where a row is, and only once it is
    // drawn.
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
