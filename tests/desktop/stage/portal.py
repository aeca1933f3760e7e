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
      <method name="ReadOne"><arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="v" direction="out"/></method>
      <method name="ReadAll"><arg type="as" direction="in"/>
        <arg type="a{sa{sv}}" direction="out"/></method>
      <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
      <property name="version" type="u" access="read"/>
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

    def read_property(self, interface, name):
        return GLib.Variant("u", 2)

    # The names are those of the D-Bus methods. pylint: disable=invalid-name
    def ReadOne(self, namespace, key):
        if (namespace, key) != (NAMESPACE, KEY):
            raise bus.BusError("org.freedesktop.portal.Error.NotFound", "no such setting")
        return (GLib.Variant("u", self._scheme),)

    def Read(self, namespace, key):
        # The older call wraps its answer in a second variant.
        return (GLib.Variant("v", self.ReadOne(namespace, key)[0]),)

    def ReadAll(self, namespaces):
        if namespaces and NAMESPACE not in namespaces:
            return ({},)
        return ({NAMESPACE: {KEY: GLib.Variant("u", self._scheme)}},)
