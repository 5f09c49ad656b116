// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/PlanView.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>
#include <utility>

#include <cairomm/region.h>

namespace drillhole {

namespace {

using Picture = Cairo::RefPtr<Cairo::Context>;

constexpr double margin = 70;
constexpr double gridSpacing = 110;
constexpr int dotSize = 8;
constexpr double holeRadius = 3.5;
constexpr double scaleBarHeight = 30;
constexpr double faint = 0.6;
constexpr double veryFaint = 0.15;

std::string coordinate(double value) {
    std::ostringstream text;
    text << std::setprecision(12) << value + 0.0; // which makes -0 a plain one
    return text.str();
}

} // namespace

PlanView::PlanView() {
    set_size_request(280, 200);
    get_style_context()->add_class("view"); // the ground of the theme
}

void PlanView::show(std::vector<Collar> collars) {
    m_collars = std::move(collars);
    queue_draw();
}

bool PlanView::on_draw(const Picture &picture) {
    const double width = get_allocated_width();
    const double height = get_allocated_height();
    get_style_context()->render_background(picture, 0, 0, width, height);
    picture->set_line_width(1);
    if (m_collars.empty()) {
        write(picture, 20, 20, "Imported collars show here, seen from above.", faint);
        return true;
    }
    const PlanScale scale = planScale(m_collars, width, height, margin);
    drawGrid(picture, scale);
    drawCollars(picture, scale);
    drawScaleBar(picture, scale);
    return true;
}

void PlanView::useInk(const Picture &picture, double strength) const {
    const Gdk::RGBA ink = get_style_context()->get_color(get_state_flags());
    picture->set_source_rgba(ink.get_red(), ink.get_green(), ink.get_blue(), strength);
}

void PlanView::write(const Picture &picture, double left, double top, const std::string &text,
                     double strength) {
    useInk(picture, strength);
    picture->move_to(left, top);
    create_pango_layout(text)->show_in_cairo_context(picture);
}

void PlanView::drawGrid(const Picture &picture, const PlanScale &scale) {
    const double width = get_allocated_width();
    const double height = get_allocated_height();
    const double step = roundStep(gridSpacing / scale.pixelsPerUnit);
    const auto line = [&](double x, double y, double endX, double endY) {
        useInk(picture, veryFaint);
        picture->move_to(x, y);
        picture->line_to(endX, endY);
        picture->stroke();
    };
    // So many at most: far out, a coordinate stays what it was when a step is added.
    const double count = std::max(width, height) / gridSpacing + 1;
    for (int i = 0; i < count; ++i) {
        const double easting = (std::ceil(scale.west / step) + i) * step;
        const double x = std::floor(scale.x(easting)) + 0.5;
        line(x, 0, x, height);
        write(picture, x + 4, 2, coordinate(easting) + " E", faint);

        const double northing = (std::floor(scale.north / step) - i) * step;
        const double y = std::floor(scale.y(northing)) + 0.5;
        line(0, y, width, y);
        if (y < height - scaleBarHeight) {
            write(picture, 4, y + 2, coordinate(northing) + " N", faint);
        }
    }
}

void PlanView::drawCollars(const Picture &picture, const PlanScale &scale) {
    const auto boxAt = [](double left, double top, int width, int height) {
        return Cairo::RectangleInt{static_cast<int>(std::floor(left)),
                                   static_cast<int>(std::floor(top)), width, height};
    };
    picture->set_source_rgb(0.8, 0.3, 0.1);
    std::vector<Cairo::RectangleInt> dots;
    dots.reserve(m_collars.size());
    for (const Collar &collar : m_collars) {
        const double x = scale.x(collar.easting);
        const double y = scale.y(collar.northing);
        picture->arc(x, y, holeRadius, 0, 2 * M_PI);
        picture->fill();
        dots.push_back(boxAt(x - holeRadius, y - holeRadius, dotSize, dotSize));
    }
    // A name that would cover another one or a hole stands on another side, or is left out.
    const auto free =
        Cairo::Region::create(boxAt(0, 0, get_allocated_width(), get_allocated_height()));
    free->subtract(Cairo::Region::create(dots));
    for (const Collar &collar : m_collars) {
        int width = 0;
        int height = 0;
        create_pango_layout(collar.name)->get_pixel_size(width, height);
        const double x = scale.x(collar.easting);
        const double y = scale.y(collar.northing);
        const double middle = x - width / 2.0;
        const std::pair<double, double> corners[] = {{x + 9, y - height / 2.0},
                                                     {x - 9 - width, y - height / 2.0},
                                                     {middle, y - 9 - height},
                                                     {middle, y + 9}};
        for (const auto &[left, top] : corners) {
            const Cairo::RectangleInt box = boxAt(left, top, width, height);
            if (free->contains_rectangle(box) == Cairo::REGION_OVERLAP_IN) {
                free->subtract(box);
                write(picture, left, top, collar.name, 1);
                break;
            }
        }
    }
}

void PlanView::drawScaleBar(const Picture &picture, const PlanScale &scale) {
    const double length = roundStep(60 / scale.pixelsPerUnit);
    const double left = 14;
    const double bottom = get_allocated_height() - 14;
    const double right = left + length * scale.pixelsPerUnit;
    useInk(picture, 1);
    picture->set_line_width(2);
    picture->move_to(left, bottom - 5);
    picture->line_to(left, bottom);
    picture->line_to(right, bottom);
    picture->line_to(right, bottom - 5);
    picture->stroke();
    write(picture, right + 6, bottom - 14, coordinate(length), 1);
}

} // namespace drillhole
