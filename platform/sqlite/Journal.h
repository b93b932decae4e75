// Writes the changes of a journal as one transaction.
#pragma once

#include "platform/sqlite/Connection.h"

namespace sqlite {

/// All the changes, or none of them after an error.
ports::DatabaseResult ApplyChanges(sqlite3* connection, const ports::StoreLayout& layout,
                                   const ports::NextChange& changes);

}  // namespace sqlite
