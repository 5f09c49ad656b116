// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/PlanView.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace drillhole {

namespace {

using Picture = Cairo::RefPtr<Cairo::Context>;

constexpr double margin = 70;
constexpr double gridSpacing = 110;
constexpr double holeRadius = 3.5;
constexpr double scaleBarHeight = 30;

// A plan is a sheet of paper, in a dark theme too.
void usePaper(const Picture &picture) {
    picture->set_source_rgb(1, 1, 1);
}

void useInk(const Picture &picture) {
    picture->set_source_rgb(0.13, 0.15, 0.17);
}

void useFaintInk(const Picture &picture) {
    picture->set_source_rgb(0.45, 0.47, 0.5);
}

void useGridColour(const Picture &picture) {
    picture->set_source_rgb(0.87, 0.88, 0.9);
}

void useHoleColour(const Picture &picture) {
    picture->set_source_rgb(0.75, 0.25, 0.1);
}

std::string coordinate(double value) {
    std::array<char, 400> digits{};
    const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                                   value, std::chars_format::fixed, 3);
    std::string text(digits.data(), end.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

struct Box {
    double left, top, right, bottom;
};

bool overlaps(const Box &one, const Box &other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

} // namespace

PlanView::PlanView() {
    set_size_request(280, 200);
}

void PlanView::show(std::vector<Collar> collars) {
    m_collars = std::move(collars);
    queue_draw();
}

bool PlanView::on_draw(const Picture &picture) {
    usePaper(picture);
    picture->paint();
    picture->select_font_face("sans-serif", Cairo::FONT_SLANT_NORMAL, Cairo::FONT_WEIGHT_NORMAL);
    picture->set_font_size(11);
    if (m_collars.empty()) {
        useFaintInk(picture);
        picture->move_to(20, 30);
        picture->show_text("Imported collars show here, seen from above.");
        return true;
    }
    const PlanScale scale =
        planScale(m_collars, get_allocated_width(), get_allocated_height(), margin);
    drawGrid(picture, scale);
    drawCollars(picture, scale);
    drawScaleBar(picture, scale);
    return true;
}

void PlanView::drawGrid(const Picture &picture, const PlanScale &scale) const {
    const double width = get_allocated_width();
    const double height = get_allocated_height();
    const double step = roundStep(gridSpacing / scale.pixelsPerUnit);
    picture->set_line_width(1);
    for (double easting = std::ceil(scale.west / step) * step; scale.x(easting) < width;
         easting += step) {
        const double x = std::floor(scale.x(easting)) + 0.5;
        useGridColour(picture);
        picture->move_to(x, 0);
        picture->line_to(x, height);
        picture->stroke();
        useFaintInk(picture);
        picture->move_to(x + 4, 14);
        picture->show_text(coordinate(easting) + " E");
    }
    for (double northing = std::floor(scale.north / step) * step; scale.y(northing) < height;
         northing -= step) {
        const double y = std::floor(scale.y(northing)) + 0.5;
        useGridColour(picture);
        picture->move_to(0, y);
        picture->line_to(width, y);
        picture->stroke();
        if (y < height - scaleBarHeight) {
            useFaintInk(picture);
            picture->move_to(4, y - 4);
            picture->show_text(coordinate(northing) + " N");
        }
    }
}

void PlanView::drawCollars(const Picture &picture, const PlanScale &scale) {
    // Names that would cover one another are left out; the holes never are.
    std::vector<Box> named;
    for (const Collar &collar : m_collars) {
        const double x = scale.x(collar.easting);
        const double y = scale.y(collar.northing);
        useHoleColour(picture);
        picture->arc(x, y, holeRadius, 0, 2 * M_PI);
        picture->fill();

        Cairo::TextExtents extents;
        picture->get_text_extents(collar.name, extents);
        const Box box = {x + 6, y - 14, x + 8 + extents.width, y};
        const bool isFree = named.size() < 2000 &&
                            std::none_of(named.begin(), named.end(),
                                         [&box](const Box &other) { return overlaps(box, other); });
        if (isFree) {
            named.push_back(box);
            useInk(picture);
            picture->move_to(x + 7, y - 4);
            picture->show_text(collar.name);
        }
    }
}

void PlanView::drawScaleBar(const Picture &picture, const PlanScale &scale) const {
    const double length = roundStep(60 / scale.pixelsPerUnit);
    const double left = 14;
    const double bottom = get_allocated_height() - 14;
    const double right = left + length * scale.pixelsPerUnit;
    useInk(picture);
    picture->set_line_width(2);
    picture->move_to(left, bottom - 5);
    picture->line_to(left, bottom);
    picture->line_to(right, bottom);
    picture->line_to(right, bottom - 5);
    picture->stroke();
    picture->move_to(right + 6, bottom);
    picture->show_text(coordinate(length));
}

} // namespace drillhole
