// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/window/planScale.h"

#include <gtkmm/drawingarea.h>

namespace drillhole {

/// The collars from above: easting against northing, true to scale, with the holes' names.
class PlanView : public Gtk::DrawingArea {
public:
    PlanView();

    void show(std::vector<Collar> collars);

private:
    bool on_draw(const Cairo::RefPtr<Cairo::Context> &picture) override;
    void useInk(const Cairo::RefPtr<Cairo::Context> &picture, double strength) const;
    void write(const Cairo::RefPtr<Cairo::Context> &picture, double left, double top,
               const std::string &text, double strength);
    void drawGrid(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale);
    void drawCollars(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale);
    void drawScaleBar(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale);

    std::vector<Collar> m_collars;
};

} // namespace drillhole
