// The menu of a page under the right button.
#pragma once

#include <QMenu>
#include <QWebEngineContextMenuRequest>

namespace webengine {

class PageTools;

/// What fits the place that was clicked: a link, a picture, a sound or video, a text, the page. The menu
/// deletes itself once it is closed.
QMenu* MakePageMenu(PageTools& tools, const QWebEngineContextMenuRequest& request, QWidget* parent);

}  // namespace webengine
