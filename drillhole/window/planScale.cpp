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
    const auto extent = [&collars](double Collar::*place) {
        const auto [least, most] = std::minmax_element(
            collars.begin(), collars.end(),
            [place](const Collar &a, const Collar &b) { return a.*place < b.*place; });
        return std::pair((*least).*place, (*most).*place);
    };
    const auto scaleFor = [margin](double units, double pixels) {
        return units > 0 ? std::max(pixels - 2 * margin, 1.0) / units : HUGE_VAL;
    };
    const auto [west, east] = extent(&Collar::easting);
    const auto [south, north] = extent(&Collar::northing);
    PlanScale scale;
    scale.pixelsPerUnit = std::min(scaleFor(east - west, width), scaleFor(north - south, height));
    if (scale.pixelsPerUnit == HUGE_VAL) {
        scale.pixelsPerUnit = scaleFor(leastExtent, std::min(width, height));
    }
    scale.west = (west + east) / 2 - width / 2 / scale.pixelsPerUnit;
    scale.north = (south + north) / 2 + height / 2 / scale.pixelsPerUnit;
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
