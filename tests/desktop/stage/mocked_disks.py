# A fake UDisks2, for machines that cannot attach real volumes.
# SPDX-License-Identifier: MIT
import contextlib
import itertools
import secrets

from gi.repository import GLib

from . import bus
from .waiting import wait_for

MANAGER_PATH = "/org/freedesktop/UDisks2"
BLOCK = "org.freedesktop.UDisks2.Block"
FILESYSTEM = "org.freedesktop.UDisks2.Filesystem"
OBJECTS = "org.freedesktop.DBus.ObjectManager"
PROPERTIES = "org.freedesktop.DBus.Properties"
ERROR = "org.freedesktop.UDisks2.Error"

# Mount points on every Linux system: one that every user can write to, and one that no user can.
WRITABLE_MOUNT = "/dev/shm"
UNWRITABLE_MOUNT = "/proc"


def path_text(path):
    """A path as UDisks2 represents it: bytes with a terminating null."""
    return path.encode() + b"\0"


class DiskService(bus.Service):
    """The object manager. A restart of UDisks2 is a new instance with the same sticks."""

    XML = """<node><interface name="org.freedesktop.DBus.ObjectManager">
      <method name="GetManagedObjects">
        <arg type="a{oa{sa{sv}}}" direction="out"/></method>
      <signal name="InterfacesAdded"><arg type="o"/><arg type="a{sa{sv}}"/></signal>
      <signal name="InterfacesRemoved"><arg type="o"/><arg type="as"/></signal>
    </interface></node>"""

    def __init__(self, address):
        self.sticks = []
        super().__init__(bus.connect(address), MANAGER_PATH)

    def open(self):
        """Owns the bus name; the sticks added before exist from the start."""
        bus.own_name(self.connection, "org.freedesktop.UDisks2")

    def close(self):
        self.connection.close_sync()

    # The name is that of the D-Bus method. pylint: disable=invalid-name
    def GetManagedObjects(self):
        return ({stick.path: stick.interfaces() for stick in self.sticks},)

    def add(self, stick):
        self.sticks.append(stick)
        self.emit(OBJECTS, "InterfacesAdded", "(oa{sa{sv}})", stick.path, stick.interfaces())

    def remove(self, stick):
        self.sticks.remove(stick)
        self.emit(OBJECTS, "InterfacesRemoved", "(oas)", stick.path, [BLOCK, FILESYSTEM])


class FileSystem(bus.Service):
    """The Filesystem interface of one stick."""

    XML = """<node><interface name="org.freedesktop.UDisks2.Filesystem">
      <method name="Mount"><arg type="a{sv}" direction="in"/>
        <arg type="s" direction="out"/></method>
      <method name="Unmount"><arg type="a{sv}" direction="in"/></method>
    </interface></node>"""

    def __init__(self, connection, stick):
        super().__init__(connection, stick.path)
        self._stick = stick

    # The names are those of the D-Bus methods. pylint: disable=invalid-name
    def Mount(self, options):
        if self._stick.place:
            raise bus.BusError(f"{ERROR}.AlreadyMounted", "It is mounted already.")
        self._stick.options = options.get("options", "")
        self._stick.mount(UNWRITABLE_MOUNT if self._stick.hibernated else WRITABLE_MOUNT)
        return (self._stick.place,)

    def Unmount(self, _options):
        if not self._stick.place:
            raise bus.BusError(f"{ERROR}.NotMounted", "It is not mounted.")
        if self._stick.busy:
            raise bus.BusError(f"{ERROR}.DeviceBusy", "target is busy")
        self._stick.mount(None)
        return ()


class MockedStick:
    """A volume that exists only in the fake UDisks2."""

    numbers = itertools.count()

    def __init__(self, machine, label, cleanup):
        self._machine = machine
        self.label = label
        self.serial = secrets.token_hex(8).upper()
        self.node = None
        self.place = None
        self.options = ""
        self.hibernated = False
        self.busy = False
        self._calls = None
        cleanup.callback(self.pull)

    @property
    def path(self):
        return f"{MANAGER_PATH}/block_devices/{self.node}"

    def interfaces(self):
        places = [path_text(self.place)] if self.place else []
        return {
            BLOCK: {"Device": GLib.Variant("ay", path_text(f"/dev/{self.node}")),
                    "IdType": GLib.Variant("s", "ntfs"),
                    "IdUsage": GLib.Variant("s", "filesystem"),
                    "IdLabel": GLib.Variant("s", self.label),
                    "IdUUID": GLib.Variant("s", self.serial),
                    "HintIgnore": GLib.Variant("b", False)},
            FILESYSTEM: {"MountPoints": GLib.Variant("aay", places)}}

    def attach(self):
        self.node = f"stage{next(self.numbers)}"
        self.serve()

    def serve(self):
        """Exports the stick on the current disk service."""
        service = self._machine.disk_service
        self._calls = FileSystem(service.connection, self)
        service.add(self)

    def pull(self):
        if not self.node:
            return
        self._machine.disk_service.remove(self)
        self._calls.withdraw()
        self.node = self.place = None

    def mount(self, place):
        self.place = place
        changed = {"MountPoints": self.interfaces()[FILESYSTEM]["MountPoints"]}
        self._calls.emit(PROPERTIES, "PropertiesChanged", "(sa{sv}as)", FILESYSTEM, changed, [])

    def mounts(self):
        return [(self.place, self.place == WRITABLE_MOUNT)] if self.place else []

    def wait_until_writable(self):
        wait_for(lambda: self.place == WRITABLE_MOUNT, f"{self.label} is mounted read-write")
        return self.place

    def wait_until_unmounted(self):
        wait_for(lambda: not self.place, f"{self.label} is unmounted")

    def hibernate(self):
        self.hibernated = True

    @contextlib.contextmanager
    def kept_busy(self):
        """While in context, the stick cannot be unmounted."""
        self.busy = True
        yield
        self.busy = False
