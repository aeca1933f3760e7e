# Sticks: NTFS volumes in image files, attached as loop devices.
# SPDX-License-Identifier: MIT
import os
import secrets
import subprocess

from .programs import run
from .waiting import wait_for

PAGE = 4096
# Offset of the serial number in an NTFS boot sector.
SERIAL_NUMBER = 0x48


def mounts_of(device):
    """The mount point of each mount of a device, and whether it is read-write, from mountinfo."""
    found = []
    with open("/proc/self/mountinfo", encoding="utf-8") as table:
        for line in table:
            before, after = line.split(" - ", 1)
            if after.split()[1] != device:
                continue
            fields = before.split()
            options = {*fields[5].split(","), *after.split()[2].split(",")}
            found.append((unescaped(fields[4]), "ro" not in options))
    return found


def unescaped(path):
    return path.encode().decode("unicode_escape").encode("latin-1").decode()


def attached_to(image):
    """The loop devices of an image file."""
    return run("losetup", "--noheadings", "--output", "NAME", "--associated", image).split()


def detach(device):
    """Detaches a loop device although it is mounted."""
    run("losetup", "-d", device)
    while mounts_of(device):
        run("umount", "--lazy", mounts_of(device)[0][0])


class Stick:
    """A volume in an image file in `folder`."""

    def __init__(self, folder, label, cleanup):
        self.label = label
        self.image = os.path.join(folder, f"{len(os.listdir(folder))}.img")
        self.device = None
        with open(self.image, "wb") as file:
            file.truncate(8 << 20)
        run("mkntfs", "-F", "-q", "-L", label, self.image)
        self._become_one_of_a_kind()
        cleanup.callback(self._throw_away)

    def _become_one_of_a_kind(self):
        """Writes a random serial number: mkntfs derives it from the time in seconds."""
        with open(self.image, "r+b") as file:
            file.seek(SERIAL_NUMBER)
            file.write(secrets.token_bytes(8))

    def _throw_away(self):
        self.pull()
        os.remove(self.image)

    @property
    def node(self):
        """The device name without /dev/."""
        return os.path.basename(self.device)

    def attach(self):
        self.device = run("losetup", "--find", "--show", self.image)
        # Tests wait for what follows; but a device that is pulled while udev probes it stays
        # attached.
        run("udevadm", "settle")

    def pull(self):
        """Removes the stick, mounted or not."""
        if not self.device:
            return
        detach(self.device)
        wait_for(lambda: not attached_to(self.image), f"{self.device} lets go of its image")
        self.device = None

    def mounts(self):
        return mounts_of(self.device)

    def wait_until_writable(self):
        """Waits until the stick is mounted read-write; returns the folder."""
        def folder():
            return next((place for place, writable in self.mounts() if writable), None)
        return wait_for(folder, f"{self.label} is mounted read-write")

    def wait_until_unmounted(self):
        wait_for(lambda: not self.mounts(), f"{self.label} is unmounted")

    def mount_read_only(self, session):
        """Mounts the stick read-only through UDisks2; returns the folder."""
        session.run("udisksctl", "mount", "--no-user-interaction", "-o", "ro", "-b", self.device)
        return self.mounts()[0][0]

    def hibernate(self):
        """Writes a hibernation file, as Windows does."""
        file = self.image + ".page"
        with open(file, "wb") as page:
            page.write(b"hibr".ljust(PAGE, b"\0"))
        run("ntfscp", "-f", self.image, file, "hiberfil.sys")
        os.remove(file)

    def content(self, file, stream=None):
        """The content of a file or stream, read from the image; None if it is absent."""
        options = ["-a", "DATA", "-n", stream] if stream else []
        result = subprocess.run(["ntfscat", "-f", *options, self.image, file],
                                capture_output=True, text=True, check=False)
        return result.stdout if result.returncode == 0 else None
