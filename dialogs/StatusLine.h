// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>

#include <wx/sizer.h>

class wxButton;
class wxStaticText;

namespace columnimport {

/// The status line of a dialog, in the space that the controls leave free: a sentence per topic, in
/// the order of the topics, and a button for an offer. It requests no space, so that nothing moves
/// when a sentence appears or disappears. A screen reader announces each change.
///
///     status.show(StatusLine::source, "The file is empty.");
///     status.show(StatusLine::source, {}); // clears the sentence
class StatusLine : public wxBoxSizer {
public:
    enum Topic : unsigned char { source, required, guesses };

    explicit StatusLine(wxWindow &dialog);

    void show(Topic topic, const wxString &sentence);

    /// Shows a button that calls `take`; an empty label removes it.
    void offer(const wxString &label, std::function<void()> take);

    wxSize CalcMin() override;
    void RepositionChildren(const wxSize &minSize) override;

private:
    wxStaticText *m_text;
    wxButton *m_button = nullptr; // null if nothing is offered
    std::array<wxString, 3> m_sentences;
    wxString m_shown;
    std::function<void()> m_take; // what the button does
};

/// The flags for adding the line to a row of controls, `gap` pixels beside them.
wxSizerFlags besideControls(int gap);

} // namespace columnimport
