"""Gaps in the recording of a steady tone."""

import re

RATE = 44100
# A sample counts as quiet below 256 of 32768; a tone passes through there in far less than a millisecond.
LEAST_SAMPLES = 22


def quiet_runs(raw):
    """[(seconds from the beginning, milliseconds)] of every stretch without sound in raw samples of two channels."""
    high = raw[1::4]    # of the left channel: 0 and 255 are the samples next to nothing
    return [(run.start() / RATE, (run.end() - run.start()) * 1000 / RATE)
            for run in re.finditer(rb"[\x00\xff]{%d,}" % LEAST_SAMPLES, high)]


def longest_gap(raw):
    """Milliseconds of the longest stretch without sound."""
    return max((length for _, length in quiet_runs(raw)), default=0.0)
