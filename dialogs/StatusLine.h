// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>

#include <wx/sizer.h>

class wxButton;
class wxStaticText;

namespace columnimport {

/// The line in which a dialog tells what a person should know, in the room that the controls leave
/// free. It has one sentence per topic, in the order of the topics, and a button for what a
/// sentence offers. It asks for no room, so that nothing moves when a sentence comes or goes. A
/// screen reader announces what is new.
///
///     status.show(StatusLine::source, "The file is empty.");
///     status.show(StatusLine::source, {}); // takes the sentence back
class StatusLine : public wxBoxSizer {
public:
    enum Topic : unsigned char { source, required, guesses };

    explicit StatusLine(wxWindow &dialog);

    void show(Topic topic, const wxString &sentence);

    /// Shows a button that calls `take`; an empty label takes it away.
    void offer(const wxString &label, std::function<void()> take);

    wxSize CalcMin() override;
    void RepositionChildren(const wxSize &minSize) override;

private:
    wxStaticText *m_text;
    wxButton *m_button = nullptr; // exists while something is offered
    std::array<wxString, 3> m_sentences;
    wxString m_shown;
    std::function<void()> m_take; // what the button does
};

/// How the line is added to a row of controls: in the room that they leave, `gap` pixels beside
/// them.
wxSizerFlags besideControls(int gap);

} // namespace columnimport
