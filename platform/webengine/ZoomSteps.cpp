#include "platform/webengine/ZoomSteps.h"

#include <algorithm>
#include <iterator>

#include "platform/webengine/SiteChoices.h"

namespace webengine {

namespace {

constexpr double kSteps[] = {0.25, 1 / 3.0, 0.5,  2 / 3.0, 0.75, 0.8, 0.9, 1.0, 1.1,
                             1.25, 1.5,     1.75, 2.0,     2.5,  3.0, 4.0, 5.0};
constexpr double kSame = 0.005;

}  // namespace

double NextZoom(double factor, int steps) {
    while (steps > 0) {
        const auto* const above = std::find_if(std::begin(kSteps), std::end(kSteps),
                                               [=](double step) { return step > factor + kSame; });
        if (above == std::end(kSteps)) return kMostZoom;
        factor = *above;
        --steps;
    }
    while (steps < 0) {
        const auto below = std::find_if(std::rbegin(kSteps), std::rend(kSteps),
                                        [=](double step) { return step < factor - kSame; });
        if (below == std::rend(kSteps)) return kLeastZoom;
        factor = *below;
        ++steps;
    }
    return std::clamp(factor, kLeastZoom, kMostZoom);
}

}  // namespace webengine
