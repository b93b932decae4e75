"""File systems that a script mounts for itself.

Mounting needs root, and the stages run as nobody. So root leaves a guardian process behind, which takes the mount away when
the script has ended.
"""

import ctypes
import os
import pathlib
import time

SKIPPED = 77
MOUNT_DETACH = 2


def mount(kind, place, options):
    """False where that is not allowed."""
    system = ctypes.CDLL(None, use_errno=True)
    return system.mount(b"test", str(place).encode(), kind.encode(), 0, options.encode()) == 0


def wait_for_end_of(script):
    """The guardian's part, without the standard streams of the script: returns once the script has ended."""
    for standard in (0, 1, 2):
        os.close(standard)
    while _is_running(script):
        time.sleep(0.2)


def unmount(place):
    ctypes.CDLL(None).umount2(str(place).encode(), MOUNT_DETACH)
    try:
        place.rmdir()
    except OSError:
        pass


def have(variable, make):
    """Root mounts by `make` and tells the script that goes on as nobody where, in a variable. False, and told, without one."""
    if os.geteuid() == 0:
        place = make()
        if place is None:
            print("No right to mount here: skipped.")
            return False
        os.environ[variable] = str(place)
    if variable not in os.environ:
        print("Not root: skipped.")
        return False
    return True


def _is_running(process):
    try:
        state = pathlib.Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()[0]
    except OSError:
        return False
    return state != "Z"
