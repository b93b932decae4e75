#include "library/DistinctTexts.h"

namespace library {

bool DistinctTexts::IsNew(std::string_view text) {
    if (!texts_.empty() && text == last_) return false;
    const auto known = texts_.find(text);
    if (known != texts_.end()) {
        last_ = *known;
        return false;
    }
    last_ = *texts_.emplace(text).first;
    return true;
}

void DistinctTexts::Clear() {
    last_ = {};
    texts_ = {};
}

}  // namespace library
