#include "platform/webengine/PageLimits.h"

namespace webengine {

void LimitSettings(QWebEngineSettings& settings) {
    using Settings = QWebEngineSettings;
    settings.setAttribute(Settings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(Settings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(Settings::ErrorPageEnabled, false);
    settings.setAttribute(Settings::FocusOnNavigationEnabled, false);
    settings.setAttribute(Settings::JavascriptCanOpenWindows, true);
    settings.setAttribute(Settings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(Settings::ScreenCaptureEnabled, false);
    settings.setAttribute(Settings::FullScreenSupportEnabled, false);
    settings.setAttribute(Settings::HyperlinkAuditingEnabled, false);
    settings.setAttribute(Settings::DnsPrefetchEnabled, false);
    settings.setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
    settings.setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

}  // namespace webengine
