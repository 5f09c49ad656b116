// SPDX-License-Identifier: MIT

#include "dialogs/StatusLine.h"

#include "readers/describe.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/stattext.h>

namespace columnimport {

namespace {

// The dialog's own identifiers end at 10.
constexpr int textId = 11;
constexpr int buttonId = 12;

} // namespace

StatusLine::StatusLine(wxWindow &dialog)
    : wxBoxSizer(wxHORIZONTAL),
      m_text(new wxStaticText(&dialog, textId, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE)) {
    m_text->Hide();
    announceWhenShown(*m_text);
    Add(m_text, wxSizerFlags(1));
}

void StatusLine::show(Topic topic, const wxString &sentence) {
    m_sentences[topic] = sentence;
    wxString text;
    for (const wxString &each : m_sentences) {
        text += (text.empty() || each.empty() ? "" : "\n") + each;
    }
    if (text == m_shown) {
        return;
    }
    m_shown = text;
    m_text->Hide();
    Layout();
    m_text->Show(!m_shown.empty());
}

void StatusLine::offer(const wxString &label, std::function<void()> take) {
    m_take = std::move(take);
    if (m_button != nullptr && m_button->GetLabelText() == label) {
        return;
    }
    if (m_button != nullptr) {
        // The button may be handling its own click.
        Detach(m_button);
        m_button->Hide();
        m_button->CallAfter([button = m_button] { button->Destroy(); });
        m_button = nullptr;
    }
    if (!label.empty()) {
        m_button = new wxButton(m_text->GetParent(), buttonId, label);
        m_button->MoveAfterInTabOrder(m_text);
        m_button->Bind(wxEVT_BUTTON, [this](wxCommandEvent &) {
            const std::function<void()> action = m_take; // may replace m_take
            action();
        });
        Add(m_button);
    }
    Layout();
}

wxSize StatusLine::CalcMin() {
    return {1, 1};
}

void StatusLine::RepositionChildren(const wxSize &) {
    wxSize text = m_size;
    if (m_button != nullptr) {
        const wxSize button = m_button->GetBestSize();
        text.x -= button.x + m_text->GetCharWidth();
        m_button->SetSize(
            wxRect(wxPoint(m_position.x + m_size.x - button.x, m_position.y), button));
    }
    text.IncTo(wxSize(1, 1));
    m_text->SetSize(wxRect(m_position, text));
    m_text->SetLabelText(m_shown);
    m_text->Wrap(text.x);
}

wxSizerFlags besideControls(int gap) {
    return wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden().Border(wxLEFT | wxTOP, gap);
}

} // namespace columnimport
