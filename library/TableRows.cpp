#include "library/TableRows.h"

#include <cstdint>
#include <utility>

#include "base/Number.h"

namespace library {

store::RecordSet OpenRows(store::DataSource& source, std::string_view query) {
    if (!source.Open(query)) return {};
    return std::move(source.Recordset());
}

bool AddNewWithKey(store::RecordSet& rows, store::Field key, controls::Label& entry_count) {
    rows.MoveLast();
    entry_count.SetCaption(rows.Text(key));
    if (!rows.AddNew()) return false;
    const auto last_key = static_cast<std::int64_t>(base::Val(entry_count.Caption()));
    entry_count.SetCaption(base::ToText(last_key + 1));
    return rows.Set(key, entry_count.Caption());
}

}  // namespace library
