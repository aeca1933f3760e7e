#!/usr/bin/env python3
# Makes random scenarios, the same for the same seed: random_scenarios.py SEED [STEPS]
# SPDX-License-Identifier: MIT
import random
import sys

from brisel_model import Model
from commands import BadCommand
from world import Ended

DEVICES = ["disk4s1", "disk5s1", "disk6s2", "disk10s3"]
NAMES = ["Data", "Data", "Data", "My Data", "Data-disk4s1", "Data-disk5s1", "unmount", "---",
         "(null)", "%@ %s %n %%", 'a "quoted" name', "back\\slash", "two\nlines", "a/b",
         "'; $(reboot) `reboot` #", "Übung – größer", "データ", "📀 | [x]", " blank ",
         "~", "OK",
         "Brisel is operating ...", "e\u0301", "x" * 300, "..", ".", "a/../b", "/slashes/",
         "a\ttab"]
KINDS = ["ntfs"] * 12 + ["NTFS", "Ntfs", "com_ntfs_3g", "ufsd_NTFS 7", "exfat", "hfs", "nt fs"]
UUIDS = ["0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0", "11111111-2222-3333-4444-555555555555",
         "AAAAAAAA-BBBB-CCCC-DDDD-EEEEEEEEEEEE", "aaaaaaaa-bbbb-cccc-dddd-eeeeeeeeeeee"]
HOMES = ["/Users/user", "/Users/user/", "/Users/Jörg Müller", "/Volumes/Homes/o'neil",
         '/home "x"']
LANGUAGES = ["de", "en", "es", "fr", "it", "ja", "pt", "zh-Hans", "nl"]
APPEARANCES = ["NSAppearanceNameAqua", "NSAppearanceNameDarkAqua", "DARK", "light",
               "NSAppearanceNameAccessibilityHighContrastVibrantDark"]
STATUSES = [f"0xF8DA{code:04X}" for code in range(15)] + ["0", "1", "49168", "0xffffffff"]
CODES = ["-60005", "-60006", "-60007", "-60031", "-70001", "1", "-1"]
TEXTS = ["Permission denied", "No space left", "a \"b\" \\ c", "two\nlines", "%@ %s", "größer"]
OUTPUTS = ["", "done", "mounted\n", "one\ntwo", "%@ %n", "ä — ✓"]
ACTIONS = ["DO_MOUNT", "DO_MOUNT", "DO_MOUNT", "NOTHING", "default", "dismiss"]
SHOWS = ["menu", "volumes", "progress", "defaults", "folders"]
# Commands that are bad at any time, and some that are bad when they come too late.
BAD = ["explode", "start now", "attach", "attach disk9s9 color=red",
       "attach disk9s9 mountable=maybe",
       "detach disk99s1", "set disk99s1 name=x", "report disk99s1", "refuse mount disk99s1 0",
       "show everything", 'press "no such button"', "choose nothing", 'file "/open', "tool exit=x",
       "password perhaps", "respond MAYBE volume=disk4s1", "system 11", "home /", "language de",
       "default showDisclaimer NO", "launch missing", "start", "fail rename x", "hold on"]


def word(text, chance):
    """A word as it may be written."""
    if text and chance.randrange(10) and not set(text) & set(' \t\n"\\#'):
        return text
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


class Scenario:
    """Commands that come about one by one, each of them possible after those before."""

    def __init__(self, seed, steps=None):
        self.chance = random.Random(seed)
        # A scenario of so many steps goes on to its end; a short one may end early.
        self.steps = steps
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

    # The program.

    def choose(self):
        """Chooses an item, mostly one of a volume."""
        items = [item for item in self.model.program.menu.items if item.action]
        about_volumes = [item for item in items if item.volume]
        if not about_volumes and self.odds(70):
            self.attach()
            return
        item = self.pick(about_volumes if about_volumes and self.odds(90) else items)
        if item.action == "terminate:" and (self.odds(90) or self.steps):
            return
        namesakes = [other for other in self.model.program.menu.items
                     if other.title == item.title and not other.is_separator()]
        place = 1 + next(i for i, other in enumerate(namesakes) if other is item)
        self.give("choose", item.title, *([str(place)] if place > 1 or self.odds(10) else []))

    def choose_two_at_once(self):
        """Starts one operation while another is under way."""
        if not self.model.world.holding:
            self.give("hold")
        self.choose()
        if not self.model.awaited:
            self.give("respond", "DO_MOUNT", ("volume", self.pick(DEVICES)))
        if self.odds(30):
            self.detach()
        self.give("release")

    def respond(self):
        given = []
        if self.odds(30) or not self.model.world.last_prompt:
            given.append(("volume", self.pick(DEVICES + ["disk99s1"])))
        if self.odds(10):
            given.append(("id", self.pick(["mount", "other"])))
        self.give("respond", self.pick(ACTIONS), *given)

    def answer(self):
        """Answers what is up."""
        if self.model.awaited == "password":
            if self.odds(70):
                self.give("password", "ok")
            elif self.odds(50):
                self.give("password", "cancel")
            else:
                self.give("password", "fail", self.pick(CODES))
        else:
            self.give("press", self.pick(self.model.awaited))

    # How a scenario goes.

    def before_start(self):
        if self.odds(40):
            self.give("system", "11")
        if self.odds(30):
            self.give("home", self.pick(HOMES))
        if self.odds(40):
            self.give("language", self.pick(LANGUAGES))
        if self.odds(80) or self.steps:
            self.give("default", "showDisclaimer", "NO")
        if self.odds(20):
            self.give("default", "shouldStartAtLogin", self.pick(["YES", "NO"]))
        if self.odds(80 if self.steps else 40):
            self.give("default", "volumeList", *self.listed())
        if self.odds(5):
            self.give("launch", "missing")

    def listed(self):
        if self.odds(50 if self.steps else 15):
            return [f"{place:08X}-0000-0000-0000-000000000000"
                    for place in range(self.chance.randrange(126, 131))]
        return [self.pick(UUIDS[:3]) for _ in range(self.chance.randrange(4))]

    def step(self):
        """One more command, whatever fits the moment."""
        often = [self.attach, self.attach, self.detach, self.plug_in_again, self.hold, self.report, self.set,
                 self.refuse, self.tool, self.fail]
        seldom = [self.launch, self.file, self.rmdir, self.script, self.notifications,
                  self.login_items, self.appearance, self.show, self.remark]
        surroundings = often * 2 + seldom
        if self.model.awaited:
            self.pick([self.answer] * len(surroundings) + surroundings)()
        elif self.model.started:
            self.pick([self.choose] * 20 + [self.choose_two_at_once] * 4 + [self.respond] * 4 +
                      surroundings)()
        else:
            self.pick(surroundings)()

    def make(self):
        self.before_start()
        for _ in range(30 if self.steps else self.chance.choice([0, 0, 0, 2, 6])):
            self.step()
        self.give("start")
        for _ in range(self.steps or self.chance.randrange(5, 50)):
            self.step()
        for what in SHOWS:
            self.give("show", what)
        if not self.steps and self.odds(15):
            self.add(self.pick(BAD))
        if not self.model.awaited and (self.steps or self.odds(30)):
            self.give("quit")


def scenario(seed, steps=None):
    """The lines of a scenario; what would follow its end or a bad command is left out."""
    made = Scenario(seed, steps)
    try:
        made.make()
    except (Ended, BadCommand):
        pass
    return made.lines


if __name__ == "__main__":
    print("\n".join(scenario(*map(int, sys.argv[1:3]))))
