#include "platform/gstreamer/Guard.h"

namespace gstreamer {

void ReportBroken(GstElement* element) noexcept {
    if (element == nullptr) return;
    GST_ELEMENT_ERROR(element, LIBRARY, FAILED, (nullptr), ("no memory, or no lock"));
}

}  // namespace gstreamer
