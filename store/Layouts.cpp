#include "store/Layouts.h"

#include "base/Text.h"

namespace store {

const ports::StoreLayout* LayoutOf(std::string_view path) {
    for (const ports::StoreLayout& layout : kStoreLayouts) {
        if (base::EndsWith(path, layout.file)) return &layout;
    }
    return nullptr;
}

}  // namespace store
