"""A disk of two megabytes: a file system in memory, mounted by root before the script goes on as nobody."""

import os
import pathlib
import tempfile

import mounts

SIZE = "2m"


def mount():
    """The folder it is mounted on; None where that is not allowed."""
    place = pathlib.Path(tempfile.mkdtemp(prefix="brindlepost-disk-"))
    if not mounts.mount("tmpfs", place, f"size={SIZE},mode=0777"):
        place.rmdir()
        return None
    script = os.getpid()
    if os.fork() == 0:
        os.setsid()
        mounts.wait_for_end_of(script)
        mounts.unmount(place)
        os._exit(0)
    return place


def fill(place):
    """Leaves no byte free."""
    with open(place / "filler", "ab", buffering=0) as file:
        for piece in (1 << 16, 1 << 12, 1):
            try:
                while True:
                    file.write(b"x" * piece)
            except OSError:
                continue
