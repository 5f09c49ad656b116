// SPDX-License-Identifier: MIT

#include "drillhole/window/PlanView.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <utility>

namespace drillhole {

namespace {

constexpr double margin = 70;
constexpr double gridSpacing = 110;
constexpr int dotSize = 8;
constexpr int gap = 5; // beside a text
constexpr double ringRadius = 6.5;
constexpr double reach = 8; // of the pointer
constexpr std::size_t namesInTip = 12;
constexpr double holeRadius = 3.5;
constexpr double scaleBarHeight = 30;
constexpr double faint = 0.6;
constexpr double veryFaint = 0.15;

std::string coordinate(double value) {
    return Glib::ustring::format(std::setprecision(12), value + 0.0); // which makes -0 a plain one
}

/// One drawing of the plan, with the theme's ink and the font of the widget.
class Drawing {
public:
    Drawing(Gtk::Widget &widget, const Cairo::RefPtr<Cairo::Context> &picture)
        : m_widget(widget), m_picture(picture), m_width(widget.get_allocated_width()),
          m_height(widget.get_allocated_height()),
          m_free(Cairo::Region::create(boxAt(0, 0, m_width, m_height))) {
        widget.get_style_context()->render_background(picture, 0, 0, m_width, m_height);
    }

    void write(double left, double top, const std::string &text, double strength = 1) {
        useInk(strength);
        m_picture->move_to(left, top);
        const auto layout = m_widget.create_pango_layout(text);
        layout->show_in_cairo_context(m_picture);
        int width = 0;
        int height = 0;
        layout->get_pixel_size(width, height);
        m_free->subtract(boxAt(left - gap, top, width + 2 * gap, height));
    }

    void draw(const std::vector<Collar> &collars, const PlanScale &scale) {
        m_scale = scale;
        drawGrid();
        drawCollars(collars);
        drawScaleBar();
    }

private:
    void useInk(double strength) {
        const Gdk::RGBA ink = m_widget.get_style_context()->get_color(m_widget.get_state_flags());
        m_picture->set_source_rgba(ink.get_red(), ink.get_green(), ink.get_blue(), strength);
    }

    void drawLine(std::initializer_list<std::pair<double, double>> points, double width,
                  double strength) {
        useInk(strength);
        m_picture->set_line_width(width);
        m_picture->begin_new_path();
        for (const auto &[x, y] : points) {
            m_picture->line_to(x, y);
        }
        m_picture->stroke();
    }

    void drawGrid() {
        const double step = roundStep(gridSpacing / m_scale.pixelsPerUnit);
        // So many at most: far out, a coordinate stays what it was when a step is added.
        const double count = std::max(m_width, m_height) / gridSpacing + 1;
        for (int i = 0; i < count; ++i) {
            const double easting = (std::ceil(m_scale.west / step) + i) * step;
            const double x = std::floor(m_scale.x(easting)) + 0.5;
            drawLine({{x, 0}, {x, m_height}}, 1, veryFaint);
            write(x + 4, 2, coordinate(easting) + " E", faint);

            const double northing = (std::floor(m_scale.north / step) - i) * step;
            const double y = std::floor(m_scale.y(northing)) + 0.5;
            drawLine({{0, y}, {m_width, y}}, 1, veryFaint);
            if (y < m_height - scaleBarHeight) {
                write(4, y + 2, coordinate(northing) + " N", faint);
            }
        }
    }

    static Cairo::RectangleInt boxAt(double left, double top, int width, int height) {
        return {static_cast<int>(std::floor(left)), static_cast<int>(std::floor(top)), width,
                height};
    }

    void drawCollars(const std::vector<Collar> &collars) {
        const std::vector<Dot> dots = dotsOf(collars, m_scale);
        std::vector<Cairo::RectangleInt> boxes;
        boxes.reserve(dots.size());
        m_picture->set_source_rgb(0.8, 0.3, 0.1);
        m_picture->set_line_width(1.5);
        for (const Dot &dot : dots) {
            const double x = m_scale.x(dot.front()->easting);
            const double y = m_scale.y(dot.front()->northing);
            m_picture->arc(x, y, holeRadius, 0, 2 * M_PI);
            m_picture->fill();
            if (dot.size() > 1) {
                m_picture->arc(x, y, ringRadius, 0, 2 * M_PI);
                m_picture->stroke();
            }
            boxes.push_back(boxAt(x - holeRadius, y - holeRadius, dotSize, dotSize));
        }
        m_free->subtract(Cairo::Region::create(boxes));
        for (const Dot &dot : dots) {
            const std::size_t more = dot.size() - 1;
            writeName(*dot.front(), more == 0 ? "" : " and " + std::to_string(more) + " more");
        }
    }

    /// A name that would cover another text or a hole stands on another side, or is left out.
    void writeName(const Collar &collar, const std::string &more) {
        const std::string name = collar.name + more;
        int width = 0;
        int height = 0;
        m_widget.create_pango_layout(name)->get_pixel_size(width, height);
        const double x = m_scale.x(collar.easting);
        const double y = m_scale.y(collar.northing);
        const double middle = x - width / 2.0;
        const std::pair<double, double> corners[] = {{x + 9, y - height / 2.0},
                                                     {x - 9 - width, y - height / 2.0},
                                                     {middle, y - 9 - height},
                                                     {middle, y + 9}};
        for (const auto &[left, top] : corners) {
            const Cairo::RectangleInt box = boxAt(left, top, width, height);
            if (m_free->contains_rectangle(box) == Cairo::REGION_OVERLAP_IN) {
                write(left, top, name);
                return;
            }
        }
    }

    void drawScaleBar() {
        const double length = roundStep(60 / m_scale.pixelsPerUnit);
        const double left = 14;
        const double bottom = m_height - 14;
        const double right = left + length * m_scale.pixelsPerUnit;
        drawLine({{left, bottom - 5}, {left, bottom}, {right, bottom}, {right, bottom - 5}}, 2, 1);
        write(right + 6, bottom - 14, coordinate(length) + " m");
    }

    Gtk::Widget &m_widget;
    Cairo::RefPtr<Cairo::Context> m_picture;
    int m_width;
    int m_height;
    Cairo::RefPtr<Cairo::Region> m_free; // no text and no dot is there yet
    PlanScale m_scale;
};

} // namespace

PlanView::PlanView() {
    set_size_request(280, 200);
    set_has_tooltip();
    signal_query_tooltip().connect(sigc::mem_fun(*this, &PlanView::tellHoles));
    get_style_context()->add_class("view"); // the ground of the theme
}

void PlanView::show(std::vector<Collar> collars) {
    m_collars = std::move(collars);
    queue_draw();
}

bool PlanView::on_draw(const Cairo::RefPtr<Cairo::Context> &picture) {
    Drawing drawing(*this, picture);
    if (m_collars.empty()) {
        drawing.write(20, 20, "Imported collars show here, seen from above.", faint);
    } else {
        m_scale = planScale(m_collars, get_allocated_width(), get_allocated_height(), margin);
        drawing.draw(m_collars, m_scale);
    }
    return true;
}

bool PlanView::tellHoles(int x, int y, bool /*isByKeyboard*/,
                         const Glib::RefPtr<Gtk::Tooltip> &tooltip) const {
    std::string tip;
    std::size_t count = 0;
    for (const Collar &collar : m_collars) {
        const double away =
            std::hypot(m_scale.x(collar.easting) - x, m_scale.y(collar.northing) - y);
        if (away <= reach && count++ < namesInTip) {
            tip += (tip.empty() ? "" : "\n") + collar.name + "   " + coordinate(collar.easting) +
                   " E   " + coordinate(collar.northing) + " N";
        }
    }
    if (count > namesInTip) {
        tip += "\nand " + std::to_string(count - namesInTip) + " more";
    }
    tooltip->set_text(tip);
    return count > 0;
}

} // namespace drillhole
