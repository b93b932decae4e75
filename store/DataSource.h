// A data source: the named control through which a window reaches one table of one store.
//
// Its use is always the same: set the record source to a query text, refresh, take the record set, walk it.
#pragma once

#include <string>
#include <string_view>

#include "store/RecordSet.h"

namespace store {

class Stores;

class DataSource {
public:
    explicit DataSource(std::string_view name) : name_(name) {}
    DataSource(const DataSource&) = delete;
    DataSource& operator=(const DataSource&) = delete;

    const std::string& Name() const { return name_; }
    /// Binds the source to a store by its full path. Nothing is opened before the first Refresh. `stores`
    /// must outlive the source.
    void SetDatabaseName(Stores& stores, std::string_view path);
    bool IsBound() const { return stores_ != nullptr; }
    void SetRecordSource(std::string_view query) { record_source_ = query; }
    const std::string& RecordSource() const { return record_source_; }
    /// Makes a new record set from the record source, on its first row. False, and the record set
    /// stays what it was, when the source is not bound, the query is none of the system's, or the store
    /// cannot be opened (which Stores reports to its listener).
    bool Refresh();
    /// Record source and Refresh in one.
    bool Open(std::string_view query);
    /// Reads some thousand rows of the query's table ahead, so that a later Open has less to do; true when
    /// there may be more to read. The record set stays what it is.
    bool ReadPiece(std::string_view query) const;
    /// The record set of the last Refresh; empty before the first.
    RecordSet& Recordset() { return records_; }

private:
    std::string name_;
    Stores* stores_ = nullptr;
    std::string path_;
    std::string record_source_;
    RecordSet records_;
};

}  // namespace store
