#include "library/TableRows.h"

#include <string>
#include <utility>

#include "store/Key.h"

namespace library {

store::RecordSet OpenRows(store::DataSource& source, std::string_view query) {
    if (!source.Open(query)) return {};
    return std::move(source.Recordset());
}

bool AddNewWithKey(store::RecordSet& rows, store::Field key, controls::Label& entry_count) {
    std::string caption = entry_count.Caption();
    const bool begun = store::NextKey(rows, key, caption);
    entry_count.SetCaption(caption);
    return begun;
}

}  // namespace library
