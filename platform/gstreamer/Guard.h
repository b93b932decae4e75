// Where C calls the engine: what is thrown there has nobody above it, and would end the process or run
// through frames that know nothing of it.
#pragma once

#include <gst/gst.h>

#include <utility>

namespace gstreamer {

/// What `work` returns. When it throws, `tell` hears of it and `failed` is returned; `tell` throws nothing.
template <class Result, class Work, class Tell>
Result Guarded(Result failed, Work&& work, Tell&& tell) noexcept {
    try {
        return std::forward<Work>(work)();
    } catch (...) {
        std::forward<Tell>(tell)();
        return failed;
    }
}

/// Reports that the song cannot be played on, as a decoder does. Null is nobody who could.
void ReportBroken(GstElement* element) noexcept;

}  // namespace gstreamer
