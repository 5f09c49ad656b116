// SPDX-License-Identifier: MIT

#include "dialogs/StatusLine.h"

#include "readers/describe.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/stattext.h>

namespace columnimport {

namespace {

// Behind the last of the dialog's own.
constexpr int textId = 11;
constexpr int buttonId = 12;

} // namespace

StatusLine::StatusLine(wxWindow &dialog)
    : wxBoxSizer(wxHORIZONTAL),
      m_text(new wxStaticText(&dialog, textId, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE)),
      m_button(new wxButton(&dialog, buttonId, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxBU_EXACTFIT)) {
    m_text->Hide();
    m_button->Hide();
    m_button->Bind(wxEVT_BUTTON, [this](wxCommandEvent &) {
        const std::function<void()> take = m_take;
        take();
    });
    announceWhenShown(*m_text);
    Add(m_text, wxSizerFlags(1));
    Add(m_button);
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
    m_button->SetLabelText(label);
    m_button->Show(!label.empty());
    Layout();
}

wxSize StatusLine::CalcMin() {
    return {1, 1};
}

void StatusLine::RepositionChildren(const wxSize &) {
    const wxSize button = m_button->IsShown() ? m_button->GetBestSize() : wxSize();
    const wxSize text(std::max(m_size.x - button.x - m_button->GetCharWidth(), 1), m_size.y);
    m_text->SetSize(wxRect(m_position, text));
    m_text->SetLabelText(m_shown);
    m_text->Wrap(text.x);
    m_button->SetSize(wxRect(wxPoint(m_position.x + m_size.x - button.x, m_position.y), button));
}

wxSizerFlags besideControls(int gap) {
    return wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden().Border(wxLEFT | wxTOP, gap);
}

} // namespace columnimport
