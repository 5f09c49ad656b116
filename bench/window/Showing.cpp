#include "bench/window/Showing.h"

#include "bench/window/FrameWatch.h"
#include "bench/window/Import.h"
#include "host/ModalRun.h"
#include "tests/window/Person.h"

#include <future>
#include <memory>
#include <thread>

#include <wx/dialog.h>
#include <wx/eventfilter.h>
#include <wx/textctrl.h>
#include <wxImportCSVDialog.h>
#include <wxImportCSVDialogPeer.h>

namespace columnimport::bench {

namespace {

constexpr std::int32_t width = 900;
constexpr std::int32_t height = 900;

class EmptyDialog : public wxImportCSVDialog {
public:
    explicit EmptyDialog(wxWindow *parent)
        : wxImportCSVDialog(parent, "Import", {}, "", false, {}, ',', true) {}
    void create() override {}
};

Delay since(Clock::time_point start, const Appearance &appearance) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    return {Milliseconds(appearance.onScreen - start).count(),
            Milliseconds(appearance.atRest - start).count()};
}

/// What is to be seen of `dialog`: the rows of its lists, or the dialog itself if it has none.
std::vector<GtkWidget *> contentOf(const wxDialog &dialog) {
    if (dialog.FindWindow(wxImportCSVDialog::LISTBOX_FILE) == nullptr) {
        return {dialog.GetHandle()};
    }
    return {gtk_bin_get_child(GTK_BIN(fileList().GetHandle())), matchList().GetHandle()};
}

/// Watches the next dialog that is shown and closes it when it is at rest.
class NextDialog : private wxEventFilter {
public:
    NextDialog() { wxEvtHandler::AddFilter(this); }
    ~NextDialog() override { wxEvtHandler::RemoveFilter(this); }
    NextDialog(const NextDialog &) = delete;
    NextDialog &operator=(const NextDialog &) = delete;

    Appearance appearance() { return m_appearance.get_future().get(); }

private:
    int FilterEvent(wxEvent &event) override {
        auto *dialog = dynamic_cast<wxDialog *>(event.GetEventObject());
        if (event.GetEventType() == wxEVT_SHOW && dialog != nullptr && !m_watch) {
            m_watch = std::make_unique<FrameWatch>(
                contentOf(*dialog), [] { return true; },
                [this, dialog](Appearance appearance) {
                    m_appearance.set_value(appearance);
                    dialog->EndModal(wxID_CANCEL);
                });
        }
        return Event_Skip;
    }

    std::unique_ptr<FrameWatch> m_watch;
    std::promise<Appearance> m_appearance;
};

void show(GtkWidget *host, const Import &import, char delimiter) {
    bool useSavedMatches = false;
    bool firstLineHeader = true;
    std::vector<std::string> matches;
    wxImportCSVDialogPeer().showWindow(host, "Import", import.appColumns(), import.fileName(),
                                       &useSavedMatches, &matches, &delimiter, &firstLineHeader,
                                       width, height);
}

wxTextCtrl &delimiterField() {
    return *static_cast<wxTextCtrl *>(wxWindow::FindWindowById(wxImportCSVDialog::TXT_DELIMITER));
}

Delay typeComma(Person &person) {
    person.click(wxImportCSVDialog::TXT_DELIMITER);
    waitUntil("the delimiter field has the focus",
              [] { return wxWindow::FindFocus() == &delimiterField(); });
    person.strike(XK_BackSpace);
    person.strike(XK_Delete);
    waitUntil("the delimiter field is empty", [] { return delimiterField().GetValue().empty(); });

    std::unique_ptr<FrameWatch> watch;
    std::promise<Appearance> appearance;
    onUserInterface([&] {
        watch = std::make_unique<FrameWatch>(
            contentOf(static_cast<wxDialog &>(*wxGetTopLevelParent(&delimiterField()))),
            [] { return delimiterField().GetValue() == ","; },
            [&](Appearance seen) { appearance.set_value(seen); });
    });
    const auto start = Clock::now();
    person.strike(XK_comma);
    return since(start, appearance.get_future().get());
}

} // namespace

Delay openEmpty(GtkWidget *host) {
    NextDialog next;
    const auto start = Clock::now();
    {
        const OpenRun run;
        HostStandIn parent(host);
        EmptyDialog dialog(parent.window());
        runDialog(dialog, width, height);
        parent.release();
        dialog.Destroy();
    }
    return since(start, next.appearance());
}

Delay open(GtkWidget *host, const Import &import) {
    NextDialog next;
    const auto start = Clock::now();
    show(host, import, ',');
    return since(start, next.appearance());
}

Delay typeDelimiter(GtkWidget *host, const Import &import) {
    auto delay = std::async(std::launch::async, [] {
        Person person;
        person.waitForDialog();
        const Delay typed = typeComma(person);
        onUserInterface([] {
            static_cast<wxDialog *>(wxGetTopLevelParent(&delimiterField()))->EndModal(wxID_CANCEL);
        });
        return typed;
    });
    show(host, import, ' ');
    return delay.get();
}

} // namespace columnimport::bench
