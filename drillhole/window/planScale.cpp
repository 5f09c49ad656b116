// SPDX-License-Identifier: MIT

#include "drillhole/window/planScale.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace drillhole {

constexpr double leastExtent = 100;

PlanScale planScale(const std::vector<Collar> &collars, double width, double height,
                    double margin) {
    const auto [west, east] =
        std::minmax_element(collars.begin(), collars.end(),
                            [](const Collar &a, const Collar &b) { return a.easting < b.easting; });
    const auto [south, north] =
        std::minmax_element(collars.begin(), collars.end(), [](const Collar &a, const Collar &b) {
            return a.northing < b.northing;
        });
    const auto scaleFor = [margin](double extent, double pixels) {
        return extent > 0 ? std::max(pixels - 2 * margin, 1.0) / extent : HUGE_VAL;
    };
    PlanScale scale;
    scale.pixelsPerUnit = std::min(scaleFor(east->easting - west->easting, width),
                                   scaleFor(north->northing - south->northing, height));
    if (scale.pixelsPerUnit == HUGE_VAL) {
        scale.pixelsPerUnit = scaleFor(leastExtent, std::min(width, height));
    }
    scale.west = (west->easting + east->easting) / 2 - width / 2 / scale.pixelsPerUnit;
    scale.north = (south->northing + north->northing) / 2 + height / 2 / scale.pixelsPerUnit;
    return scale;
}

std::vector<Dot> dotsOf(const std::vector<Collar> &collars, const PlanScale &scale) {
    std::map<std::pair<double, double>, std::size_t> numbers;
    std::vector<Dot> dots;
    for (const Collar &collar : collars) {
        const std::pair pixel(std::round(scale.x(collar.easting)),
                              std::round(scale.y(collar.northing)));
        const auto [number, isNew] = numbers.try_emplace(pixel, dots.size());
        if (isNew) {
            dots.emplace_back();
        }
        dots[number->second].push_back(&collar);
    }
    return dots;
}

double roundStep(double units) {
    const double power = std::pow(10, std::floor(std::log10(std::max(units, 0.001))));
    for (const double factor : {1.0, 2.0, 5.0}) {
        // A hair below counts as equal, as powers of ten are not exact.
        if (factor * power >= units * (1 - 1e-9)) {
            return factor * power;
        }
    }
    return 10 * power;
}

} // namespace drillhole
