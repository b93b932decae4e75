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
    settings.setAttribute(Settings::FullScreenSupportEnabled, true);
    // The engine's own view of PDF files is the only plugin there is.
    settings.setAttribute(Settings::PluginsEnabled, true);
    settings.setAttribute(Settings::PdfViewerEnabled, true);
    settings.setAttribute(Settings::HyperlinkAuditingEnabled, false);
    settings.setAttribute(Settings::DnsPrefetchEnabled, false);
    settings.setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
    settings.setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

}  // namespace webengine
