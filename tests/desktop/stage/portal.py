# A fake Settings portal with the colour scheme.
# SPDX-License-Identifier: MIT
from gi.repository import GLib

from . import bus

SETTINGS = "org.freedesktop.portal.Settings"
NAMESPACE = "org.freedesktop.appearance"
KEY = "color-scheme"
NO_PREFERENCE, DARK, LIGHT = 0, 1, 2


class SettingsPortal(bus.Service):
    """Serves one setting, which tests change."""

    XML = """<node><interface name="org.freedesktop.portal.Settings">
      <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="v" direction="out"/></method>
      <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
    </interface></node>"""

    def __init__(self, connection):
        super().__init__(connection, "/org/freedesktop/portal/desktop")
        self._scheme = LIGHT
        bus.own_name(connection, "org.freedesktop.portal.Desktop")

    def choose(self, scheme):
        """Changes the setting, as the desktop's settings dialog does."""
        self._scheme = scheme
        self.emit(SETTINGS, "SettingChanged", "(ssv)", NAMESPACE, KEY,
                  GLib.Variant("u", scheme))

    # The name is that of the D-Bus method. pylint: disable=invalid-name
    def Read(self, namespace, key):
        if (namespace, key) != (NAMESPACE, KEY):
            raise bus.BusError("org.freedesktop.portal.Error.NotFound", "no such setting")
        return (GLib.Variant("v", GLib.Variant("u", self._scheme)),)
