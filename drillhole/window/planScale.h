// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/holeDatabase.h"

namespace drillhole {

/// Where coordinates stand in a picture: east to the right, north up, both at the same scale.
struct PlanScale {
    double pixelsPerUnit = 1;
    double west = 0;  ///< easting of the picture's left edge
    double north = 0; ///< northing of its upper edge

    double x(double easting) const { return (easting - west) * pixelsPerUnit; }
    double y(double northing) const { return (north - northing) * pixelsPerUnit; }
};

/// The largest scale at which all collars stand in the middle of a picture, `margin` pixels off its
/// edges; there is one at least. One collar, or several at one place, get the scale of a hundred
/// units.
PlanScale planScale(const std::vector<Collar> &collars, double width, double height, double margin);

/// The collars that share a dot of a picture, in their order.
using Dot = std::vector<const Collar *>;

/// The dots of all collars; those whose middles are less than a pixel apart share one.
std::vector<Dot> dotsOf(const std::vector<Collar> &collars, const PlanScale &scale);

/// The smallest of 1, 2, 5, 10, 20, 50 and so on, down to 0.001 and up, that is at least `units`.
double roundStep(double units);

} // namespace drillhole
