// SPDX-License-Identifier: MIT

#include "dialogs/quietSentence.h"

#include "dialogs/nativeControls.h"
#include "dragdrop/controls.h"

#include <map>

#include <wx/sizer.h>
#include <wx/stattext.h>

namespace columnimport {

namespace {

constexpr int sentenceId = 11; // behind the last of the dialog's own

// Of itself it asks for no room.
class QuietSentence : public wxStaticText {
public:
    explicit QuietSentence(wxWindow &dialog)
        : wxStaticText(&dialog, sentenceId, wxEmptyString, wxDefaultPosition, wxSize(1, 1),
                       wxST_NO_AUTORESIZE) {
        Hide();
        announceWhenShown(*this);
    }

    void say(Matter matter, const wxString &sentence) {
        wxString &said = m_sentences[matter];
        if (said == sentence) {
            return;
        }
        said = sentence;
        wxString text;
        for (const auto &[about, each] : m_sentences) {
            text += (text.empty() || each.empty() ? "" : "\n") + each;
        }
        Hide();
        SetLabelText(text);
        Show(!text.empty());
    }

    const wxString &said(Matter matter) { return m_sentences[matter]; }

private:
    std::map<Matter, wxString> m_sentences;
};

} // namespace

void say(wxWindow &inside, Matter matter, const wxString &sentence) {
    findControl<QuietSentence>(inside, sentenceId)->say(matter, sentence);
}

wxString said(wxWindow &inside, Matter matter) {
    return findControl<QuietSentence>(inside, sentenceId)->said(matter);
}

void addQuietSentence(wxWindow &dialog, wxBoxSizer &row, int gap) {
    row.Add(new QuietSentence(dialog),
            wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden().Border(wxLEFT | wxTOP, gap));
}

bool hasQuietSentence(wxWindow &dialog) {
    return findControl<QuietSentence>(dialog, sentenceId) != nullptr;
}

} // namespace columnimport
