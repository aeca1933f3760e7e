# Fake hosts of the tray icon that behave as those of Plasma, GNOME, and LXQt or MATE.
# SPDX-License-Identifier: MIT
from gi.repository import GLib

from . import bus
from .session import WATCHER
from .tray import ITEM, ITEM_PATH, MENU, entry_of

PATH = "/StatusNotifierWatcher"
ROOT = 0


class Host(bus.Service):
    """Watcher and host in one; a click calls Activate and does nothing more, as in LXQt 1.2 and
    MATE 1.26."""

    XML = """<node><interface name="org.kde.StatusNotifierWatcher">
      <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
      <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
      <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    </interface></node>"""

    def __init__(self, address):
        super().__init__(bus.connect(address), PATH)
        self.items = []
        bus.own_name(self.connection, WATCHER)

    def close(self):
        self.connection.close_sync()

    # Names are those of the D-Bus methods. pylint: disable=invalid-name
    def RegisterStatusNotifierItem(self, item):
        if item not in self.items:
            self.items.append(item)
        return ()

    def read_property(self, interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", self.items),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True)}[name]

    def activate(self):
        """Calls Activate of the first item; returns whether the item took it."""
        try:
            bus.call(self.connection, self.items[0], ITEM_PATH, f"{ITEM}.Activate", "(ii)", 0, 0)
            return True
        except GLib.Error:
            return False

    def click(self):
        """A left click on the icon."""
        self.activate()

    def open_menu(self):
        """The entries of the menu, as a host reads them before it shows them."""
        item = self.items[0]
        path = bus.properties(self.connection, item, ITEM_PATH, ITEM)["Menu"]
        bus.call(self.connection, item, path, f"{MENU}.AboutToShow", "(i)", ROOT)
        _revision, (_id, _properties, children) = bus.call(
            self.connection, item, path, f"{MENU}.GetLayout", "(iias)", ROOT, -1, [])
        return children


class PlasmaHost(Host):
    """Opens the menu only if Activate fails. An entry has a check mark only if it had a toggle
    type when it was first seen."""

    def __init__(self, address):
        super().__init__(address)
        self.menu = []
        self._toggles = {}

    def click(self):
        self.menu = [] if self.activate() else self.read_menu()

    def read_menu(self):
        """Reads the menu; returns its entries as shown."""
        shown = []
        for child in self.open_menu():
            entry = entry_of(child)
            toggles = self._toggles.setdefault(entry.id, bool(child[1].get("toggle-type")))
            entry.checked = entry.checked and toggles
            shown.append(entry)
        return shown


class GnomeHost(Host):
    """Misses an item that registers by a well-known name: the extension asks for such a name's
    owner again, and drops the item if its properties come first. Inserts new entries of the menu,
    and moves none."""

    def __init__(self, address):
        self.missed = []
        self._order = []
        super().__init__(address)

    def RegisterStatusNotifierItem(self, item):
        if not (item.startswith(":") and bus.has_owner(self.connection, item)):
            self.missed.append(item)
            return ()
        return super().RegisterStatusNotifierItem(item)

    def read_menu(self):
        """Reads the menu; returns its entries as shown."""
        entries = {child[0]: entry_of(child) for child in self.open_menu()}
        self._order = [number for number in self._order if number in entries]
        for position, number in enumerate(entries):
            if number not in self._order:
                self._order.insert(position, number)
        return [entries[number] for number in self._order]
