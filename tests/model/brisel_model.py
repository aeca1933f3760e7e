#!/usr/bin/env python3
# Reads a scenario and prints the transcript that the program must produce: brisel_model.py [FILE]
# SPDX-License-Identifier: MIT
import os
import sys

import looking
from commands import (BadCommand, NUMBER, STATUS, checked, demand, disk_keys, keys, number, words)
from mounting import CANCELLED
from program import Program
from world import Ended, World

RESOURCES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "resources")
BEFORE_START = ("system", "home", "language", "default", "start")
OF_THE_PROGRAM = ("choose", "press", "password", "respond", "quit")
# What the items of the menu do.
ACTIONS = {
    "toggleStartAtLogin:": Program.toggle_start_at_login,
    "bringToFront:": Program.bring_to_front,
    "terminate:": Program.terminate,
    "remountVolume:": Program.remount,
    "showInFinder:": Program.show_in_finder,
    "unmountVolume:": Program.unmount,
    "cleanupFinderInfo:": Program.clean_up,
    "saveVolumeForAutomount:": Program.save_for_automount,
    "unsaveVolumeForAutomount:": Program.unsave_for_automount,
}


class Model:
    """Carries out the commands of a scenario."""

    def __init__(self):
        self.out = []
        self.world = World(RESOURCES, self.out)
        self.world.speak("en")
        self.program = Program(self.world)
        self.started = False
        # What the program does now, and the buttons or the password that it waits for.
        self.doing, self.awaited = None, None

    def carry_out(self, line):
        """Carries out one command and all that follows from it."""
        name, *arguments = command = words(line)
        checked(command)
        demand(not (self.started and name in BEFORE_START), "too late")
        demand(self.started or name not in OF_THE_PROGRAM, "too early")
        if name in ("choose", "respond", "quit"):
            demand(not self.awaited, "an alert is up")
        getattr(self, "do_" + name.replace("-", "_"))(*arguments)
        while self.started and not self.awaited and self.world.queue:
            self.run(self.world.queue.popleft()())

    def run(self, doing):
        self.doing = doing
        self.go_on(None)

    def go_on(self, answer):
        try:
            self.awaited = self.doing.send(answer)
        except StopIteration:
            self.doing, self.awaited = None, None

    def disk(self, device):
        disk = self.world.disks.get(device)
        demand(disk and disk.there, "no such disk")
        return disk

    # Before the start.

    def do_system(self, version):
        self.world.system = int(version)

    def do_home(self, path):
        self.world.home = path

    def do_language(self, code):
        self.world.speak(code)

    def do_default(self, *arguments):
        demand(arguments, "which one?")
        key, *values = arguments
        demand(key in ("shouldStartAtLogin", "showDisclaimer", "volumeList"), "no such preference")
        if key != "volumeList":
            demand(len(values) == 1 and values[0] in ("YES", "NO"), "neither YES nor NO")
        self.world.defaults[key] = values if key == "volumeList" else values[0] == "YES"

    # The program.

    def do_start(self):
        self.started = True
        self.run(self.program.start())

    def do_choose(self, *arguments):
        demand(len(arguments) in (1, 2), "TITLE [N]")
        place = number(arguments[1]) if len(arguments) == 2 else 1
        items = [item for item in self.program.menu.items
                 if item.title == arguments[0] and not item.is_separator()]
        demand(1 <= place <= len(items) and items[place - 1].action, "no such item")
        item = items[place - 1]
        self.run(ACTIONS[item.action](self.program, item.volume))

    def do_press(self, title):
        demand(isinstance(self.awaited, tuple) and title in self.awaited, "no such button")
        self.go_on(self.awaited.index(title))

    def do_password(self, *arguments):
        demand(self.awaited == "password", "no password is asked for")
        demand(arguments in (("ok",), ("cancel",)) or arguments[:1] == ("fail",) and
               len(arguments) == 2, "ok, cancel or fail CODE")
        self.go_on({"ok": 0, "cancel": CANCELLED}.get(arguments[0]) if len(arguments) == 1
                   else number(arguments[1], NUMBER))

    def do_respond(self, *arguments):
        demand(arguments and arguments[0] in ("DO_MOUNT", "NOTHING", "default", "dismiss"), "what?")
        given = keys(arguments[1:], ("id", "volume"))
        identifier, device = self.world.last_prompt or ("mount", None)
        demand(device or "volume" in given, "no prompt was shown")
        self.run(self.program.respond(
            arguments[0], given.get("id", identifier), given.get("volume", device)))

    def do_quit(self):
        self.run(self.program.terminate())

    # The surroundings.

    def do_attach(self, *arguments):
        demand(arguments, "which one?")
        known = self.world.disks.get(arguments[0])
        demand(not (known and known.there), "it is there")
        self.world.attach(arguments[0], disk_keys(arguments[1:]))

    def do_set(self, *arguments):
        demand(len(arguments) > 1, "what?")
        self.world.change(self.disk(arguments[0]), disk_keys(arguments[1:]))

    def do_report(self, device):
        self.world.report(self.disk(device), "appeared")

    def do_detach(self, device):
        self.world.detach(self.disk(device))

    def do_refuse(self, request, device, status):
        demand(device in self.world.disks, "there never was such a disk")
        self.world.refusals[request, device] = number(status, STATUS)

    def do_hold(self):
        self.world.holding = True

    def do_release(self):
        self.world.release()

    def do_tool(self, *arguments):
        given = keys(arguments, ("exit", "output", "signal"))
        demand(("exit" in given) != ("signal" in given), "exit or signal?")
        demand(not ("signal" in given and "output" in given), "no output with a signal")
        number(given.get("signal", "0"))
        # What a signal ends has no status, and so looks like success.
        self.world.tool_status = number(given.get("exit", "0"))
        self.world.tool_mounts = "exit" in given and self.world.tool_status == 0
        self.world.tool_output = given.get("output", "")

    def do_launch(self, *arguments):
        if arguments == ("missing",):
            demand(not self.started, "too late")
            self.world.launch_missing = True
            return
        demand(len(arguments) == 2 and arguments[0] == "fail", "fail CODE or missing")
        self.world.launch_failure = number(arguments[1])

    def do_file(self, path):
        self.world.folders.make_file(path)

    def do_rmdir(self, path):
        self.world.folders.remove(path)

    def do_fail(self, *arguments):
        demand(len(arguments) in (2, 3) and arguments[0] in self.world.file_failures, "what?")
        reason = arguments[2] if len(arguments) == 3 else None
        self.world.file_failures[arguments[0]].append((arguments[1], reason))

    def do_script(self, *arguments):
        demand(arguments[:1] == ("fail",), "fail")
        self.world.script_failure = keys(arguments[1:])

    def do_notifications(self, answer):
        if answer == "add-error":
            self.world.refuse_notification = True
        else:
            self.world.permission = answer

    def do_login_items(self, answer):
        self.world.login_items_accept = answer == "accept"

    def do_appearance(self, name):
        self.world.appearance = name
        self.program.menu.appearance_changed()

    # Looking.

    def do_show(self, what):
        getattr(looking, what)(self)


def is_command(line):
    return line.strip(" \t") != "" and not line.startswith("#")


def transcript(lines):
    """What is printed for these lines, and the number of the bad one, or 0."""
    model = Model()
    for place, line in enumerate(lines, 1):
        if not is_command(line):
            continue
        model.out.append("> " + line)
        try:
            model.carry_out(line)
        except BadCommand:
            return model.out, place
        except Ended:
            break
    return model.out, 0


def main():
    with open(sys.argv[1] if len(sys.argv) > 1 else 0, encoding="utf-8", newline="\n") as file:
        lines = file.read().split("\n")
    printed, bad = transcript(lines)
    print("".join(line + "\n" for line in printed), end="")
    if bad:
        print(f"line {bad}: a bad command", file=sys.stderr)
    return 2 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
