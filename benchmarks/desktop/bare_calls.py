# Reads lines of NODE OPTIONS; unmounts and mounts each device by bare UDisks2 calls.
# SPDX-License-Identifier: MIT
import sys

from gi.repository import Gio, GLib

UDISKS = "org.freedesktop.UDisks2"


def call(bus, node, method, arguments):
    bus.call_sync(UDISKS, f"/org/freedesktop/UDisks2/block_devices/{node}", f"{UDISKS}.Filesystem",
                  method, GLib.Variant("(a{sv})", (arguments,)), None, Gio.DBusCallFlags.NONE, -1,
                  None)


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
    for line in sys.stdin:
        node, options = line.split()
        call(bus, node, "Unmount", {})
        call(bus, node, "Mount", {"options": GLib.Variant("s", options)})
        print("done", flush=True)


main()
