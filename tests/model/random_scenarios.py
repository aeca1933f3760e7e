#!/usr/bin/env python3
# Makes random scenarios, the same for the same seed: random_scenarios.py SEED [STEPS]
# SPDX-License-Identifier: MIT
import sys

from commands import BadCommand
from random_commands import Commands
from vocabulary import ACTIONS, BAD, CODES, DEVICES, HOMES, LANGUAGES, SHOWS, UUIDS
from world import Ended


class Scenario(Commands):
    """A scenario that goes on for so many steps, or a short one, which may end early."""

    def __init__(self, seed, steps=None):
        super().__init__(seed)
        self.steps = steps

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
