// What plays on in a song's pipeline when the song is over, without a gap.
//
// Its file is read before the song's last samples are heard. Until then it can be wished otherwise: what was
// read for nothing is never heard. All members may be called on any thread.
#pragma once

#include <gst/gst.h>

#include <memory>
#include <mutex>
#include <string>

#include "platform/gstreamer/Entry.h"

namespace gstreamer {

class Successor final {
public:
    /// `entry` is how its sound is taken. An empty path wishes for none.
    void Wish(std::string native_path, std::shared_ptr<EntryWish> entry);
    /// What the song goes on with, which is read from now on; empty for nothing.
    std::string Take();
    /// Null unless something was taken, and is not over.
    std::shared_ptr<EntryWish> Taken() const;
    std::string TakenPath() const;
    /// The first of what was taken is about to be heard: true when it is wished still.
    bool Enter();
    bool HasEntered() const;
    /// True once, for the first samples of what has entered.
    bool TakeFirstSamples();
    /// From here on it is the song; something else may follow. Returns how its sound is taken.
    std::shared_ptr<EntryWish> Settle();

private:
    mutable std::mutex mutex_;
    std::string wished_;
    std::string taken_;
    std::shared_ptr<EntryWish> wished_entry_;
    std::shared_ptr<EntryWish> taken_entry_;
    bool entered_ = false;
    bool first_samples_ = false;
};

/// The playbin reads on with what is taken at the end of a song, and `sink` lets it in or ends the song.
void LetFollow(GstElement* playbin, GstElement* sink, const std::shared_ptr<Successor>& successor);

}  // namespace gstreamer
