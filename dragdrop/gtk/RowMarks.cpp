// SPDX-License-Identifier: MIT

#include "RowMarks.h"

#include <algorithm>
#include <cmath>

#include <wx/gdicmn.h>
#include <wx/listctrl.h>
#include <wx/settings.h>

namespace columnimport {

namespace {

double linear(unsigned char part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// The relative luminance, as defined by the guidelines for accessible web content.
double luminance(const wxColour &colour) {
    return 0.2126 * linear(colour.Red()) + 0.7152 * linear(colour.Green()) +
           0.0722 * linear(colour.Blue());
}

wxColour textOn(const wxColour &ground) {
    return contrast(*wxBLACK, ground) > contrast(*wxWHITE, ground) ? *wxBLACK : *wxWHITE;
}

/// How well `ground` fits as the colour of a marked row: at most 1, with all wanted contrasts.
double fitness(const wxColour &ground, const wxColour &background, const wxColour &hover) {
    constexpr double markContrast = 3.2;
    constexpr double textContrast = 4.6;
    return std::min({contrast(ground, background) / markContrast,
                     contrast(ground, hover) / markContrast,
                     contrast(ground, textOn(ground)) / textContrast, 1.0});
}

} // namespace

double contrast(const wxColour &one, const wxColour &other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

// Tries the tones between the hover colour and black or white, in steps too small to see. Takes the
// nearest one with all wanted contrasts, or else the best.
MarkColours markColours(const wxColour &background, const wxColour &hover) {
    wxColour best = hover;
    constexpr int unchanged = 100; // black is 0, white is 200
    for (int step = 2; step <= unchanged; step += 2) {
        for (const int lightness : {unchanged - step, unchanged + step}) {
            const wxColour tone = hover.ChangeLightness(lightness);
            if (fitness(tone, background, hover) > fitness(best, background, hover)) {
                best = tone;
            }
        }
    }
    return {best, textOn(best)};
}

RowMarks::RowMarks(wxListCtrl &list) : m_list(list) {
    list.Bind(wxEVT_LIST_DELETE_ALL_ITEMS, [this](wxListEvent &event) {
        m_marked.clear();
        event.Skip();
    });
}

void RowMarks::set(long row, bool marked) {
    if (marked == isMarked(row)) {
        return;
    }
    MarkColours colours{m_list.GetBackgroundColour(), m_list.GetForegroundColour()};
    if (marked) {
        m_marked.insert(row);
        colours = markColours(colours.ground, wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT));
    } else {
        m_marked.erase(row);
    }
    m_list.SetItemBackgroundColour(row, colours.ground);
    m_list.SetItemTextColour(row, colours.text);
    if (m_changed) {
        m_changed(row);
    }
}

} // namespace columnimport
