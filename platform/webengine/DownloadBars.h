// What a page's own area says of the downloads that came out of it: one began, is done, has to be kept or
// not, or the page was refused more.
#pragma once

#include <QWebEnginePage>
#include <functional>

#include "platform/webengine/Downloads.h"
#include "platform/webengine/PageBars.h"

namespace webengine {

class DownloadBars final {
public:
    /// `in_front`: the area of a page that is seen now, null without one. What a page that is not seen any
    /// more began is said there.
    DownloadBars(Downloads& downloads, std::function<void()> show_list, std::function<PageBars*()> in_front)
        : downloads_(downloads), show_list_(std::move(show_list)), in_front_(std::move(in_front)) {}

    void Tell(QWebEnginePage* page, const Download& download);
    void TellRefused(QWebEnginePage* page);

private:
    PageBars* AreaFor(QWebEnginePage* page) const;

    Downloads& downloads_;
    std::function<void()> show_list_;
    std::function<PageBars*()> in_front_;
};

}  // namespace webengine
