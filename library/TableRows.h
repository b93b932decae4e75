// How the library walks a table and gives keys.
#pragma once

#include <string_view>

#include "controls/Label.h"
#include "store/DataSource.h"
#include "store/RecordSet.h"

namespace library {

/// Opens a query on a data source and takes its record set over, so that the walk keeps its place whatever
/// another handler does with the same data source during a yield. An empty record set when the source cannot
/// be opened.
store::RecordSet OpenRows(store::DataSource& source, std::string_view query);

/// Begins a new row with the key that follows the last row's in table order (1 in an empty table). The
/// caption of `entry_count` becomes that key. False, with nothing begun, when the table cannot take a row.
bool AddNewWithKey(store::RecordSet& rows, store::Field key, controls::Label& entry_count);

}  // namespace library
