#include "platform/webengine/PageKeys.h"

#include <vector>

#include "controls/Control.h"
#include "platform/webengine/EnginePage.h"

namespace webengine {

namespace {

struct PageKey {
    int key_code;
    int shift;
    /// True if the key is used up; one that does not apply just now goes on.
    bool (*act)(EnginePage&);
};

/// One row a key.
const std::vector<PageKey>& Keys() {
    static const std::vector<PageKey> keys{};
    return keys;
}

}  // namespace

bool TakePageKey(EnginePage& page, int key_code, int shift) {
    for (const PageKey& key : Keys()) {
        if (key.key_code == key_code && key.shift == shift) return key.act(page);
    }
    return false;
}

}  // namespace webengine
