# The tray icon and its menu on the hosts of several desktops.
# SPDX-License-Identifier: MIT
from stage.hosts import GnomeHost, Host, PlasmaHost
from stage.waiting import stays, wait_for

from .story import Story


def labels_of(entries):
    return [None if entry.separator else entry.label for entry in entries]


class Hosts(Story):
    def start_on(self, kind):
        """Replaces the panel by a host of this kind and starts the program; returns the host."""
        host = self.stage.start_host(kind)
        self.start_brisel()
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        return host

    def test_on_plasma_a_click_opens_the_menu_and_no_window(self):
        host = self.start_on(PlasmaHost)
        host.click()
        self.assertEqual(labels_of(host.menu), self.tray.labels())
        stays(lambda: not self.stage.alerts.windows(), "no window is shown", seconds=1.5)

    def test_where_a_click_does_nothing_the_menu_opens_in_a_window(self):
        host = self.start_on(Host)
        host.click()
        wait_for(self.stage.alerts.windows, "the menu is shown in a window")

    def test_on_plasma_start_at_login_gets_its_check_mark(self):
        host = self.start_on(PlasmaHost)
        host.read_menu()
        self.tray.choose("Start at Login")
        wait_for(lambda: any(entry.checked for entry in host.read_menu()), "an entry is checked")

    def test_on_gnome_the_icon_is_not_missed(self):
        host = self.start_on(GnomeHost)
        self.assertEqual(host.missed, [])

    def test_on_gnome_the_menu_is_in_order(self):
        host = self.start_on(GnomeHost)
        self.assert_in_order(host)
        first = self.attach("StageFirst")
        self.tray.wait_for_entry("re-mount StageFirst")
        self.assert_in_order(host)
        self.attach("StageSecond")
        self.tray.wait_for_entry("re-mount StageSecond")
        self.assert_in_order(host)
        self.tray.choose("re-mount StageFirst")
        self.tray.wait_for_entry("show the folder of StageFirst")
        self.assert_in_order(host)
        first.pull()
        self.tray.wait_until_gone("show the folder of StageFirst")
        self.assert_in_order(host)

    def assert_in_order(self, host):
        # The menu may change between the two readings.
        wait_for(lambda: labels_of(host.read_menu()) == self.tray.labels(), "the menu is in order")
