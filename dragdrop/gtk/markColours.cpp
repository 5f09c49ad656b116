// SPDX-License-Identifier: MIT

#include "markColours.h"

#include <algorithm>
#include <cmath>

#include <wx/gdicmn.h>

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

wxColour mixed(const wxColour &colour, const wxColour &into, double share) {
    return {wxColour::AlphaBlend(into.Red(), colour.Red(), share),
            wxColour::AlphaBlend(into.Green(), colour.Green(), share),
            wxColour::AlphaBlend(into.Blue(), colour.Blue(), share)};
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
    constexpr int steps = 50;
    for (int step = 1; step <= steps; ++step) {
        for (const wxColour &end : {*wxBLACK, *wxWHITE}) {
            const wxColour tone = mixed(hover, end, static_cast<double>(step) / steps);
            if (fitness(tone, background, hover) > fitness(best, background, hover)) {
                best = tone;
            }
        }
    }
    return {best, textOn(best)};
}

} // namespace columnimport
