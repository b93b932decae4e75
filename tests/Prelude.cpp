// The compiled header belongs to a target, and a target to a source.
