#include "store/Key.h"

#include "base/Number.h"

namespace store {

std::string KeyAfter(std::string_view caption) {
    // A caption that is no number, kNoKeyYet too, counts as 0.
    return base::ToText(base::OneMore(base::WholeVal(caption)));
}

bool NextKey(RecordSet& records, Field key, std::string& caption) {
    caption.clear();
    if (records.MoveLast()) caption = records.Text(key);
    if (!records.AddNew()) return false;
    caption = KeyAfter(caption);
    return records.Set(key, caption);
}

}  // namespace store
