// SPDX-License-Identifier: MIT

#include "bench/window/Showing.h"

#include "bench/window/FrameWatch.h"
#include "bench/window/Import.h"
#include "person/Person.h"
#include "person/openDialog.h"

#include <future>
#include <memory>

#include <wx/dialog.h>
#include <wx/eventfilter.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>
#include <wxImportCSVDialogPeer.h>

namespace columnimport::bench {

namespace {

std::vector<GtkWidget *> bothLists() {
    return {gtk_bin_get_child(GTK_BIN(fileList().GetHandle())), matchList().GetHandle()};
}

/// Watches the next dialog that is shown and closes it when its lists are on the screen.
class NextDialog : private wxEventFilter {
public:
    NextDialog() { wxEvtHandler::AddFilter(this); }
    ~NextDialog() override { wxEvtHandler::RemoveFilter(this); }
    NextDialog(const NextDialog &) = delete;
    NextDialog &operator=(const NextDialog &) = delete;

    Clock::time_point onScreen() { return m_onScreen.get_future().get(); }

private:
    int FilterEvent(wxEvent &event) override {
        auto *dialog = dynamic_cast<wxDialog *>(event.GetEventObject());
        if (event.GetEventType() == wxEVT_SHOW && dialog != nullptr && !m_watch) {
            m_watch = std::make_unique<FrameWatch>(
                bothLists(), [] { return true; },
                [this, dialog](Clock::time_point onScreen) {
                    m_onScreen.set_value(onScreen);
                    dialog->EndModal(wxID_CANCEL);
                });
        }
        return Event_Skip;
    }

    std::unique_ptr<FrameWatch> m_watch;
    std::promise<Clock::time_point> m_onScreen;
};

void show(GtkWidget *host, const Import &import, char delimiter) {
    bool useSavedMatches = false;
    bool firstLineHeader = true;
    std::vector<std::string> matches;
    wxImportCSVDialogPeer().showWindow(host, "Import", import.appColumns(), import.fileName(),
                                       &useSavedMatches, &matches, &delimiter, &firstLineHeader,
                                       900, 900);
}

Milliseconds typeComma(Person &person) {
    person.emptyDelimiter();
    std::unique_ptr<FrameWatch> watch;
    std::promise<Clock::time_point> onScreen;
    onUserInterface([&] {
        watch = std::make_unique<FrameWatch>(
            bothLists(),
            [] { return control<wxTextCtrl>(wxImportCSVDialog::TXT_DELIMITER).GetValue() == ","; },
            [&](Clock::time_point seen) { onScreen.set_value(seen); });
    });
    const auto start = Clock::now();
    person.strike(',');
    const Clock::time_point end = onScreen.get_future().get();
    onUserInterface([&] { watch.reset(); });
    return end - start;
}

} // namespace

Milliseconds open(GtkWidget *host, const Import &import) {
    NextDialog next;
    const auto start = Clock::now();
    show(host, import, ',');
    return next.onScreen() - start;
}

Milliseconds typeDelimiter(GtkWidget *host, const Import &import) {
    auto delay = std::async(std::launch::async, [] {
        Person person;
        person.waitForDialog();
        const Milliseconds typed = typeComma(person);
        onUserInterface([] { openDialog().EndModal(wxID_CANCEL); });
        return typed;
    });
    show(host, import, ' ');
    return delay.get();
}

} // namespace columnimport::bench
