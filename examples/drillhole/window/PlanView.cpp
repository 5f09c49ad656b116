// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/PlanView.h"

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
constexpr double faint = 0.6;
constexpr double veryFaint = 0.15;

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

/// Which parts of a picture are covered, in squares of a few pixels.
class Cover {
public:
    Cover(double width, double height)
        : m_columns(static_cast<int>(width / side) + 1),
          m_rows(static_cast<int>(height / side) + 1),
          m_isTaken(static_cast<std::size_t>(m_columns * m_rows)) {}

    /// Whether the box lies in the picture and nothing was there; or takes its place.
    bool isFree(double left, double top, double width, double height, bool takes = false) {
        for (int row = at(top); row <= at(top + height); ++row) {
            for (int column = at(left); column <= at(left + width); ++column) {
                if (row < 0 || column < 0 || row >= m_rows || column >= m_columns) {
                    if (!takes) {
                        return false;
                    }
                    continue;
                }
                const auto place =
                    static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                    static_cast<std::size_t>(column);
                if (!takes && m_isTaken[place]) {
                    return false;
                }
                m_isTaken[place] = takes || m_isTaken[place];
            }
        }
        return true;
    }

private:
    static constexpr double side = 4;
    static int at(double place) { return static_cast<int>(std::floor(place / side)); }

    int m_columns;
    int m_rows;
    std::vector<bool> m_isTaken;
};

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
    for (double easting = std::ceil(scale.west / step) * step; scale.x(easting) < width;
         easting += step) {
        const double x = std::floor(scale.x(easting)) + 0.5;
        line(x, 0, x, height);
        write(picture, x + 4, 2, coordinate(easting) + " E", faint);
    }
    for (double northing = std::floor(scale.north / step) * step; scale.y(northing) < height;
         northing -= step) {
        const double y = std::floor(scale.y(northing)) + 0.5;
        line(0, y, width, y);
        if (y < height - scaleBarHeight) {
            write(picture, 4, y + 2, coordinate(northing) + " N", faint);
        }
    }
}

void PlanView::drawCollars(const Picture &picture, const PlanScale &scale) {
    Cover cover(get_allocated_width(), get_allocated_height());
    picture->set_source_rgb(0.8, 0.3, 0.1);
    for (const Collar &collar : m_collars) {
        const double x = scale.x(collar.easting);
        const double y = scale.y(collar.northing);
        picture->arc(x, y, holeRadius, 0, 2 * M_PI);
        picture->fill();
        cover.isFree(x - holeRadius, y - holeRadius, 2 * holeRadius, 2 * holeRadius, true);
    }
    // A name that would cover another one or a hole stands on another side, or is left out.
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
            if (cover.isFree(left, top, width, height)) {
                cover.isFree(left, top, width, height, true);
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
