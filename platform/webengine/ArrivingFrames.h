// The frames that set out while a document loads, until it is told that they have arrived.
//
// A document that is there may send its frames on as long as it is open, which nobody is told: none of that
// is kept.
#pragma once

#include <QUrl>
#include <cstddef>
#include <utility>
#include <vector>

namespace webengine {

class ArrivingFrames final {
public:
    /// As many as the engine lets a document have at once.
    static constexpr std::size_t kMost = 1000;

    /// A document begins to load.
    void Begin() {
        Drop();
        loads_ = true;
    }
    void Add(const QUrl& frame) {
        if (loads_ && frames_.size() < kMost) frames_.push_back(frame);
    }
    /// The document has loaded.
    std::vector<QUrl> Take() {
        loads_ = false;
        return std::exchange(frames_, {});
    }
    /// Nothing came of the load.
    void Drop() { Take(); }
    std::size_t Count() const { return frames_.size(); }

private:
    std::vector<QUrl> frames_;
    bool loads_ = false;
};

}  // namespace webengine
