// The steps that a page's zoom goes in.
#pragma once

namespace webengine {

/// The factor that many steps above (`steps` > 0) or below a factor, within the engine's bounds.
double NextZoom(double factor, int steps);

}  // namespace webengine
