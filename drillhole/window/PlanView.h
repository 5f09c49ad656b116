// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/planScale.h"

#include <gtkmm.h>

namespace drillhole {

/// The collars from above: easting against northing, true to scale, with the holes' names.
/// Under the pointer it tells the names and coordinates of the holes there.
class PlanView : public Gtk::DrawingArea {
public:
    PlanView();

    void show(std::vector<Collar> collars);

private:
    bool on_draw(const Cairo::RefPtr<Cairo::Context> &picture) override;
    bool tellHoles(int x, int y, bool isByKeyboard,
                   const Glib::RefPtr<Gtk::Tooltip> &tooltip) const;

    std::vector<Collar> m_collars;
    PlanScale m_scale; // of the last drawing
};

} // namespace drillhole
