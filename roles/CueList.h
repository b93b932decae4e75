// The cue list: `lstCuedSongs` and, row by row beside it, `lstCuedSongsPath`. Why: drops and typed files cue
// songs from the address row; the flags that say how the head is played stay with the list's owner.
#pragma once

#include <string_view>

namespace roles {

class CueList {
public:
    virtual ~CueList() = default;
    virtual int SongCount() const = 0;
    virtual int PathCount() const = 0;
    /// Selects a row of `lstCuedSongsPath`.
    virtual void SelectPath(int row) = 0;
    /// Adds a file at the end. One that becomes the head is played as a path; the songs before it stay what
    /// they are.
    virtual void CueFile(std::string_view path, std::string_view title) = 0;
    /// Takes out the first entry that equals the path; nothing happens without one.
    virtual void RemovePath(std::string_view path) = 0;
};

}  // namespace roles
