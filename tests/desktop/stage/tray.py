# The program's tray icon and menu, read over D-Bus.
# SPDX-License-Identifier: MIT
from dataclasses import dataclass

from gi.repository import GLib

from . import bus
from .session import WATCHER
from .waiting import wait_for

ITEM = "org.kde.StatusNotifierItem"
ITEM_PATH = "/StatusNotifierItem"
MENU = "com.canonical.dbusmenu"


@dataclass
class Entry:
    """A menu item."""

    id: int
    label: str
    enabled: bool
    checked: bool
    separator: bool


def entry_of(node):
    """Converts a node of GetLayout."""
    number, properties, _children = node
    return Entry(number, properties.get("label", "").replace("__", "\0").replace("_", "").replace(
        "\0", "_"), properties.get("enabled", True), properties.get("toggle-state", 0) == 1,
        properties.get("type") == "separator")


class Tray:
    """The tray icon of one process."""

    def __init__(self, connection, pid):
        self._connection = connection
        self._name = f"{ITEM}-{pid}-1"

    def _watcher(self, name):
        return bus.properties(self._connection, WATCHER, "/StatusNotifierWatcher", WATCHER)[name]

    def all_items(self):
        """The bus names of the items registered with the panel."""
        return self._watcher("RegisteredStatusNotifierItems")

    def _registered(self):
        try:
            owner = bus.driver(self._connection, "GetNameOwner", "(s)", self._name)
            return any(item.startswith(owner) for item in self.all_items())
        except GLib.Error:
            return False

    def _has_menu(self):
        try:
            return bool(self.menu())
        except GLib.Error:
            return False

    def wait_until_shown(self):
        """Waits until the icon is registered and its menu is exported."""
        wait_for(self._registered, f"{self._name} is in the panel")
        wait_for(self._has_menu, f"{self._name} has a menu")

    def property(self, name):
        return bus.properties(self._connection, self._name, ITEM_PATH, ITEM)[name]

    def icon(self):
        return self.property("IconName")

    def wait_for_icon(self, name):
        wait_for(lambda: self.icon() == name, f"the icon is {name}",
                 instead=lambda: f"it is {self.icon()}")

    def wait_for_colour(self, colour):
        self.wait_for_icon(f"brisel-status-{colour}-light")

    def menu(self):
        """The entries from top to bottom."""
        path = self.property("Menu")
        _revision, (_id, _properties, children) = bus.call(
            self._connection, self._name, path, f"{MENU}.GetLayout", "(iias)", 0, -1, [])
        return [entry_of(child) for child in children]

    def labels(self):
        """The labels; None for a separator."""
        return [None if entry.separator else entry.label for entry in self.menu()]

    def wait_for_entry(self, label):
        """Waits for an entry with this label; returns it."""
        def find():
            return next((entry for entry in self.menu() if entry.label == label), None)
        return wait_for(find, f'the menu has "{label}"', instead=lambda: f"it has {self.labels()}")

    def wait_until_gone(self, label):
        wait_for(lambda: label not in self.labels(), f'"{label}" leaves the menu',
                 instead=lambda: f"it has {self.labels()}")

    def choose(self, label, below=None):
        """Chooses an entry; `below` is the label of an earlier one."""
        self.wait_for_entry(below or label)
        entries = self.menu()
        titles = [entry.label for entry in entries]
        start = titles.index(below) if below else 0
        entry = entries[titles.index(label, start)]
        bus.call(self._connection, self._name, self.property("Menu"), f"{MENU}.Event", "(isvu)",
                 entry.id, "clicked", GLib.Variant("i", 0), 0)
