# The rules of the menu, its icon and the prompts that it starts.
# SPDX-License-Identifier: MIT
import dataclasses
import typing

COLOURS = ["grey", "green", "blue", "orange", "red"]
EMPTY, READ_ONLY, WRITABLE, WORKING, ERROR = range(5)
MAIN, SECONDARY = 101, 102


@dataclasses.dataclass
class Item:
    title: str
    tag: int = 0
    action: str = ""
    volume: typing.Any = None

    def is_separator(self):
        return self.title == "---" and not self.action


def separator(tag=MAIN):
    return Item("---", tag)


class Menu:
    def __init__(self, program):
        self.program, self.world = program, program.world
        self.items = [Item("Start at Login", action="toggleStartAtLogin:"),
                      Item("About Brisel", action="bringToFront:"),
                      separator(0),
                      Item("Quit Brisel", action="terminate:")]
        self.state = EMPTY
        self.follows_appearance = False

    def is_checked(self, item):
        return item.action == "toggleStartAtLogin:" and self.program.start_at_login

    # The icon.

    def show_icon(self):
        shade = "dark" if "dark" in self.world.appearance.lower() else "light"
        self.world.say(f"icon: brisel-status-{COLOURS[self.state]}-{shade}")

    def show_error(self):
        self.state = ERROR
        self.show_icon()

    def appearance_changed(self):
        if self.follows_appearance:
            self.show_icon()

    # The items.

    def refresh(self):
        self.items = [item for item in self.items if item.tag not in (MAIN, SECONDARY)]
        if self.program.in_progress:
            self.show_line("Brisel is operating ...", WORKING)
        elif not self.program.volumes:
            self.show_line("No NTFS Volumes to re-mount", EMPTY)
        for volume in self.program.volumes if not self.program.in_progress else []:
            self.show_volume(volume)
        self.world.say("menu: " + " | ".join(
            item.title + (" [x]" if self.is_checked(item) else "") for item in self.items))
        self.show_icon()

    def show_line(self, title, state):
        self.items[:0] = [Item(self.world.text(title), MAIN), separator()]
        self.state = state

    def show_volume(self, volume):
        listed, text = self.program.is_on_list(volume), self.world.text
        if not volume.writable:
            title = text("re-mount %@", volume.label)
            self.items.insert(0, Item(title, MAIN, "remountVolume:", volume))
            if not volume.prompted and not listed:
                self.prompt(volume)
            self.items.insert(2, separator())
            self.state = READ_ONLY
            return
        main = Item(text("show %@ in Finder", volume.label), MAIN, "showInFinder:", volume)
        more = [("unmount", "unmountVolume:"),
                ("remove all extended attributes", "cleanupFinderInfo:")]
        if volume.uuid and listed:
            more.append(("mount manually", "unsaveVolumeForAutomount:"))
        elif volume.uuid:
            more.append(("mount automatically", "saveVolumeForAutomount:"))
        group = [Item(text(title), SECONDARY, action, volume) for title, action in more]
        self.items[:0] = [main] + group + [separator()]
        self.state = WRITABLE

    def prompt(self, volume):
        """Asks in a notification whether to mount a volume read-write."""
        self.world.say("permission: alert sound")
        if self.world.permission == "error":
            self.program.log("Requesting auth for Local Notification failed!")
        elif self.world.permission == "allow":
            title = self.world.text("%@ detected", volume.label)
            body = self.world.text("Re-mount it read-write?")
            accepted = self.world.notify(volume.device, title, body)
            if not accepted:
                self.program.log("Adding Local Notification failed!")
            volume.prompted = volume.prompted or accepted
