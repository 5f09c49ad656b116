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
    void drawGrid(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale) const;
    void drawCollars(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale);
    void drawScaleBar(const Cairo::RefPtr<Cairo::Context> &picture, const PlanScale &scale) const;

    std::vector<Collar> m_collars;
};

} // namespace drillhole
