// What every page is refused by the engine's own settings.
#pragma once

#include <QWebEngineSettings>

namespace webengine {

void LimitSettings(QWebEngineSettings& settings);

}  // namespace webengine
