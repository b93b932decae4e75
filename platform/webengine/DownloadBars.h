// What a page's own area says of the downloads that came out of it: one began, is done, has to be kept or
// not, or the page was refused more.
#pragma once

#include <QWebEnginePage>
#include <functional>

#include "platform/webengine/Downloads.h"

namespace webengine {

class DownloadBars final {
public:
    DownloadBars(Downloads& downloads, std::function<void()> show_list)
        : downloads_(downloads), show_list_(std::move(show_list)) {}

    void Tell(QWebEnginePage* page, const Download& download);
    void TellRefused(QWebEnginePage* page);

private:
    Downloads& downloads_;
    std::function<void()> show_list_;
};

}  // namespace webengine
