"""The Debian package in a bare Debian: `test_package.py PACKAGE.deb [RELEASE [PICTURES_FOLDER]]`; by hand, as root.

A tree of the release ("bookworm", "trixie"; without one that of this computer, which made the package) is made from the
registry that this computer installs from. There the package is installed, started by a user on a display of this computer,
used (test_installed.py), removed, and replaced by a newer one. What is installed besides for that is the list "demo" of
tools/packages.txt, after the bare start. Wants debootstrap, Xvfb, xdotool, imagemagick and the network; `BRINDLEPOST_TREE`
names a tree that is there already and stays.
"""

import os
import pathlib
import platform
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from stage import wait_for
from story import check, check_equal

SCRIPTS = pathlib.Path(__file__).resolve().parent
PACKAGES = SCRIPTS.parent.parent / "tools/packages.txt"
USER = "guest"
STORE = "/home/guest/.local/share/brindlepost/dbMedia.mdb"
# What the tests want that is in no other list of a bare machine's.
TOOLS = ["libglib2.0-bin", "desktop-file-utils", "shared-mime-info"]


def of_this_computer(*command, **options):
    return subprocess.run([str(part) for part in command], check=True, text=True, **options)


# Enters a tree: `sh -c ENTER TREE COMMAND...`. Its mounts are in a namespace of the command's own, whose root is the tree: in
# a changed root alone the kernel refuses the namespaces that pages are put into.
ENTER = """
mount --bind "$0" "$0" && cd "$0"
for place in /proc /dev /dev/pts /tmp/.X11-unix; do mkdir -p "$0$place"; mount --bind "$place" "$0$place"; done
mount -t tmpfs tmpfs "$0/dev/shm"
mkdir -p .outside && pivot_root . .outside && cd / && umount -l /.outside && exec "$@"
"""
ENVIRONMENT = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LANG": "C.UTF-8", "HOME": "/root", "DEBIAN_FRONTEND": "noninteractive"}


class Tree:
    """A bare Debian in a folder."""

    def __init__(self, release):
        self.own = "BRINDLEPOST_TREE" not in os.environ
        self.folder = pathlib.Path(os.environ.get("BRINDLEPOST_TREE") or tempfile.mkdtemp(prefix="brindlepost-tree-"))
        if self.own:
            self.folder.chmod(0o755)
            of_this_computer("debootstrap", "--variant=minbase", release, self.folder, stdout=subprocess.DEVNULL)

    def command(self, *command):
        return ["unshare", "--mount", "--propagation", "private", "env", "-i",
                *(f"{name}={value}" for name, value in ENVIRONMENT.items()), "sh", "-c", ENTER, str(self.folder), *command]

    def run(self, *command):
        done = subprocess.run(self.command(*command), check=False, text=True, stdout=subprocess.PIPE, stdin=subprocess.DEVNULL)
        check(done.returncode == 0, f"{' '.join(command)}: {done.stdout}")
        return done.stdout

    def says(self, *command):
        return subprocess.run(self.command(*command), check=False, text=True, capture_output=True).returncode == 0

    def install(self, *packages):
        """Megabytes that it takes on the disk."""
        before = self.megabytes()
        self.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", *packages)
        self.run("apt-get", "clean")
        return self.megabytes() - before

    def megabytes(self):
        return int(of_this_computer("du", "-sxm", self.folder, stdout=subprocess.PIPE).stdout.split()[0])

    def close(self):
        if self.own:
            shutil.rmtree(self.folder, ignore_errors=True)


class Display:
    """A display of this computer, for a tree that has none."""

    def __init__(self):
        # Not the next free one: the trees have numbers of their own, and the same sockets.
        self.name = f":{200 + os.getpid() % 700}"
        self.server = subprocess.Popen(["Xvfb", self.name, "-screen", "0", "1280x860x24", "-nolisten", "tcp", "-ac", "-noreset"])
        wait_for("the display", lambda: self.ask("xdotool", "getmouselocation"))

    def ask(self, *command):
        return subprocess.run(command, env={**os.environ, "DISPLAY": self.name}, text=True, check=False,
                              capture_output=True).stdout

    def close(self):
        self.server.terminate()
        self.server.wait()


def packages_of(group):
    return [line.split()[1] for line in PACKAGES.read_text().splitlines() if line.startswith(group + " ")]


def newer_of(package, folder):
    """The same package under a higher version."""
    content = folder / "content"
    of_this_computer("dpkg-deb", "-R", package, content)
    control = content / "DEBIAN/control"
    control.write_text(re.sub(r"^(Version: .*)$", r"\1+newer", control.read_text(), flags=re.M))
    made = folder / "newer.deb"
    of_this_computer("dpkg-deb", "--root-owner-group", "-Zgzip", "-b", content, made, stdout=subprocess.DEVNULL)
    return made


class Owner:
    """Somebody who installs the package on a computer that has nothing, and a guest who uses it."""

    def __init__(self, tree, package, work, pictures):
        self.tree = tree
        self.package = package
        self.newer = newer_of(package, work)
        self.pictures = pictures

    def bring_in(self, package):
        shutil.copy(package, self.tree.folder / "root" / package.name)
        return "/root/" + package.name

    def it_installs_with_what_it_needs(self):
        self.tree.run("apt-get", "update", "-qq")
        begin = time.monotonic()
        megabytes = self.tree.install(self.bring_in(self.package))
        print(f"   {time.monotonic() - begin:.0f} s, {megabytes} MB on the disk")
        check(self.tree.says("test", "-x", "/usr/bin/brindlepost"), "no program in /usr/bin")

    def a_bare_machine_starts_it(self):
        """Nothing but the package and what it depends on is there."""
        if not self.tree.says("id", USER):
            self.tree.run("useradd", "--create-home", USER)
        display = Display()
        program = subprocess.Popen(
            self.tree.command("setpriv", "--reuid=" + USER, "--regid=" + USER, "--init-groups", "env",
                              "HOME=/home/" + USER, "DISPLAY=" + display.name, "brindlepost"))
        try:
            wait_for("the login", lambda: display.ask("xdotool", "search", "--onlyvisible", "--name", "^Brindlepost - Login$"),
                     60)
            wait_for("a picture of more than a few colours",
                     lambda: int(display.ask("import", "-window", "root", "-format", "%k", "info:-") or 0) > 50, 30)
            if self.pictures:
                display.ask("import", "-window", "root", str(self.pictures / "login.png"))
        finally:
            program.send_signal(signal.SIGTERM)
            code = program.wait(20)
            display.close()
        check_equal("the exit code", code, 0)

    def it_is_used(self):
        """By the tests of an installed program."""
        print(f"   {self.tree.install(*packages_of('demo'), *TOOLS)} MB for the tools of the tests")
        place = self.tree.folder / "root/real"
        place.mkdir(exist_ok=True)
        for script in SCRIPTS.glob("*.py"):
            shutil.copy(script, place)
        print(self.tree.run("python3", "/root/real/test_installed.py", "/usr"))

    def files_of_the_guest(self):
        return self.tree.run("find", "/home/" + USER, "-type", "f", "-printf", "%p %s %T@\\n")

    def removed_it_leaves_the_guests_data(self):
        before = self.files_of_the_guest()
        check(STORE in before, f"no store among {before}")
        self.tree.run("apt-get", "purge", "-y", "-qq", "brindlepost")
        check_equal("what the guest has", self.files_of_the_guest(), before)
        left = self.tree.run("find", "/usr", "/etc", "/var/lib", "-iname", "*brindlepost*", "-not", "-path", "*/dpkg/*")
        check_equal("what is left", left, "")

    def a_newer_one_replaces_it(self):
        self.tree.install(self.bring_in(self.package))
        before = self.files_of_the_guest()
        self.tree.install(self.bring_in(self.newer))
        version = self.tree.run("dpkg-query", "-W", "-f", "${Version}", "brindlepost")
        check(version.endswith("+newer"), f"the version is {version}")
        check_equal("what the guest has", self.files_of_the_guest(), before)
        self.a_bare_machine_starts_it()

    def steps(self):
        return [self.it_installs_with_what_it_needs, self.a_bare_machine_starts_it, self.it_is_used,
                self.removed_it_leaves_the_guests_data, self.a_newer_one_replaces_it]


def main():
    package = pathlib.Path(sys.argv[1]).resolve()
    release = sys.argv[2] if len(sys.argv) > 2 else platform.freedesktop_os_release()["VERSION_CODENAME"]
    pictures = pathlib.Path(sys.argv[3]).resolve() if len(sys.argv) > 3 else None
    if os.geteuid() != 0:
        sys.exit("Only root may make a tree and enter it.")
    tree = Tree(release)
    try:
        with tempfile.TemporaryDirectory(prefix="brindlepost-package-") as work:
            for step in Owner(tree, package, pathlib.Path(work), pictures).steps():
                begin = time.monotonic()
                step()
                print(f"ok {step.__name__.replace('_', ' ')} ({time.monotonic() - begin:.0f} s)", flush=True)
    finally:
        tree.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
