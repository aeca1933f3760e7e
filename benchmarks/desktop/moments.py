# Times of UDisks2 signals and of mount table changes.
# SPDX-License-Identifier: MIT
import select
import threading
import time

from gi.repository import Gio, GLib

PATIENCE = 20
UDISKS = "org.freedesktop.UDisks2"


class FilesystemReports:
    """Times at which UDisks2 reported new file systems, by device name; listens in a thread."""

    def __init__(self):
        self._times = {}
        self._told = threading.Condition()
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        ready = threading.Event()
        threading.Thread(target=self._listen, args=(ready,), daemon=True).start()
        ready.wait(PATIENCE)

    def _listen(self, ready):
        self._context.push_thread_default()
        bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
        # The stage may stop the bus before this program ends.
        bus.set_exit_on_close(False)
        bus.signal_subscribe(UDISKS, "org.freedesktop.DBus.ObjectManager", "InterfacesAdded", None,
                             None, Gio.DBusSignalFlags.NONE, self._note)
        ready.set()
        self._loop.run()

    def _note(self, _bus, _sender, _path, _interface, _signal, arguments):
        moment = time.monotonic()
        path = arguments.get_child_value(0).get_string()
        interfaces = arguments.get_child_value(1)
        names = [interfaces.get_child_value(index).get_child_value(0).get_string()
                 for index in range(interfaces.n_children())]
        if f"{UDISKS}.Filesystem" in names:
            with self._told:
                self._times[path.rsplit("/", 1)[1]] = moment
                self._told.notify_all()

    def forget(self):
        with self._told:
            self._times.clear()

    def wait_for(self, node):
        with self._told:
            if not self._told.wait_for(lambda: node in self._times, PATIENCE):
                raise TimeoutError(f"UDisks2 did not tell of {node}")
            return self._times[node]


def wait_for_mounts(condition, what):
    """Waits until `condition` holds, checking at each mount table change; returns the time."""
    deadline = time.monotonic() + PATIENCE
    with open("/proc/self/mountinfo", encoding="utf-8") as table:
        changes = select.poll()
        changes.register(table, select.POLLPRI)
        while not condition():
            left = deadline - time.monotonic()
            if left <= 0:
                raise TimeoutError(what)
            changes.poll(left * 1000)
        return time.monotonic()
