#pragma once

namespace roles {

class FileType {
public:
    virtual ~FileType() = default;
    /// Claims ".mp3" for this program, whatever claimed it before. Asks nothing and reports no failure.
    virtual void cmdAssociate() = 0;
};

}  // namespace roles
