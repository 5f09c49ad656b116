// SPDX-License-Identifier: MIT

#include "drillhole/window/planScale.h"

#include <gtest/gtest.h>

using namespace drillhole;

namespace {

TEST(PlanScale, FitsAllCollarsAtOneScaleInTheMiddle) {
    const std::vector<Collar> collars = {{"a", 1000, 500}, {"b", 1200, 600}};
    const PlanScale wide = planScale(collars, 420, 1000, 10);
    EXPECT_DOUBLE_EQ(wide.x(1000), 10);
    EXPECT_DOUBLE_EQ(wide.x(1200), 410);
    EXPECT_DOUBLE_EQ(wide.y(600), 400) << "north is up";
    EXPECT_DOUBLE_EQ(planScale(collars, 1000, 120, 10).pixelsPerUnit, 1);
}

TEST(PlanScale, ShowsOneCollarAndARowOfThemToo) {
    EXPECT_DOUBLE_EQ(planScale({{"a", 5, 5}}, 220, 220, 10).pixelsPerUnit, 2);
    EXPECT_DOUBLE_EQ(planScale({{"a", 5, 0}, {"b", 5, 50}}, 220, 220, 10).pixelsPerUnit, 4);
    EXPECT_GT(planScale({{"a", 0, 0}, {"b", 9, 9}}, 5, 5, 10).pixelsPerUnit, 0);
}

TEST(Dots, AreSharedByHolesAtOnePlace) {
    const std::vector<Collar> collars = {{"a", 0, 0}, {"b", 100, 0}, {"c", 0.1, 0}};
    const std::vector<Dot> dots = dotsOf(collars, planScale(collars, 120, 120, 10));
    ASSERT_EQ(dots.size(), 2U);
    EXPECT_EQ(dots[0].back()->name + dots[1].front()->name, "cb");
}

TEST(RoundStep, GoesUpToTheNextRoundNumber) {
    const double cases[][2] = {{0.9, 1}, {1.1, 2}, {37, 50}, {1000, 1000}, {0.03, 0.05}};
    for (const auto &each : cases) {
        EXPECT_NEAR(roundStep(each[0]), each[1], each[1] * 1e-9);
    }
}

} // namespace
