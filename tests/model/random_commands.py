# Makes random commands on the surroundings of the program, as they fit the moment.
# SPDX-License-Identifier: MIT
import random

from brisel_model import Model
from vocabulary import (APPEARANCES, CODES, DEVICES, KINDS, NAMES, OUTPUTS, SHOWS, STATUSES, TEXTS,
                        UUIDS)


def word(text, chance):
    """A word as it may be written."""
    if text and chance.randrange(10) and not set(text) & set(' \t\n"\\#'):
        return text
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


class Commands:
    """Commands that come about one by one, each of them possible after those before."""

    def __init__(self, seed):
        self.chance = random.Random(seed)
        self.model = Model()
        self.lines = []

    def pick(self, some):
        return self.chance.choice(list(some))

    def odds(self, percent):
        return self.chance.random() * 100 < percent

    def give(self, name, *arguments):
        """Adds a command; arguments that are pairs are KEY=VALUE."""
        written = [name]
        for argument in arguments:
            if isinstance(argument, tuple):
                written.append(argument[0] + "=" + (argument[1] and word(argument[1], self.chance)))
            else:
                written.append(word(argument, self.chance))
        self.add(" ".join(written))

    def add(self, line):
        self.lines.append(line)
        self.model.carry_out(line)

    # What to write about.

    def folder(self):
        return f"{self.model.world.home}/.brisel/{self.pick(NAMES)}"

    def disks(self, there):
        known = self.model.world.disks
        return [device for device in DEVICES
                if there == (device in known and known[device].there)]

    def properties(self, percent):
        """Some keys of a disk."""
        paths = ["/Volumes/Data", "/Volumes/Data/", "/Volumes/" + self.pick(NAMES), self.folder()]
        values = {"kind": self.pick(KINDS), "name": self.pick(NAMES), "path": self.pick(paths),
                  "volume-uuid": self.pick(UUIDS)}
        rare = {"media-uuid": self.pick(UUIDS), "writable": self.pick(["yes", "yes", "no"]),
                "mountable": self.pick(["yes", "no"])}
        chosen = [pair for pair in values.items() if self.odds(percent)]
        chosen += [pair for pair in rare.items() if self.odds(percent / 5 + 5)]
        self.chance.shuffle(chosen)
        return chosen

    # The surroundings.

    def attach(self):
        if self.disks(False):
            self.give("attach", self.pick(self.disks(False)), *self.properties(90))

    def set(self):
        properties = [(key, value if self.odds(80) else "") for key, value in self.properties(30)]
        if self.disks(True) and properties:
            self.give("set", self.pick(self.disks(True)), *properties)

    def report(self):
        if self.disks(True):
            self.give("report", self.pick(self.disks(True)))

    def detach(self):
        if self.disks(True):
            self.give("detach", self.pick(self.disks(True)))

    def plug_in_again(self):
        """Brings back a volume that was unmounted, or never mounted."""
        disks = self.model.world.disks
        lost = [device for device in self.disks(True) if not disks[device].description.get("path")]
        if lost:
            device = self.pick(lost)
            self.give("detach", device)
            if not self.model.world.holding or self.odds(30):
                self.give("attach", device, *self.properties(90))

    def refuse(self):
        if self.model.world.disks:
            self.give("refuse", self.pick(["unmount", "unmount", "mount"]),
                      self.pick(self.model.world.disks), self.pick(STATUSES))

    def hold(self):
        """Holds seldom for long, that operations come to their end."""
        if self.model.world.holding:
            self.give("release")
        elif self.odds(40):
            self.give("hold")

    def tool(self):
        if self.odds(20):
            self.give("tool", ("signal", self.pick(["9", "15"])))
        else:
            output = [("output", self.pick(OUTPUTS))] if self.odds(50) else []
            self.give("tool", ("exit", self.pick(["0", "0", "0", "1", "66", "255"])), *output)

    def launch(self):
        self.give("launch", "fail", self.pick(CODES))

    def file(self):
        folder = self.pick([self.folder(), "/Volumes/Data"])
        self.give("file", folder + "/" + self.pick(["f", ".f", "d/f"]))

    def rmdir(self):
        if self.model.world.folders.folders:
            self.give("rmdir", self.pick(sorted(self.model.world.folders.folders)))

    def fail(self):
        reason = [self.pick(TEXTS)] if self.odds(50) else []
        self.give("fail", self.pick(["create", "list", "delete"]), self.pick(TEXTS), *reason)

    def script(self):
        pairs = [(key, self.pick(TEXTS)) for key in ("NSAppleScriptErrorNumber", "Message", "Aa")]
        self.chance.shuffle(pairs)
        self.give("script", "fail", *pairs[: self.chance.randrange(4)])

    def notifications(self):
        self.give("notifications", self.pick(["allow", "allow", "deny", "error", "add-error"]))

    def login_items(self):
        self.give("login-items", self.pick(["accept", "refuse"]))

    def appearance(self):
        self.give("appearance", self.pick(APPEARANCES))

    def show(self):
        self.give("show", self.pick(SHOWS))

    def remark(self):
        self.lines.append(self.pick(["# a remark", "", "  "]))
