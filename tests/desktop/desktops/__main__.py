# Plays Brisel, which is installed, on one desktop: `python3 -m desktops DESKTOP PICTURES`.
# SPDX-License-Identifier: MIT
import os
import shutil
import signal
import sys
from contextlib import ExitStack

from .gnome import Gnome
from .lxqt import Lxqt
from .machine import Machine
from .mate import Mate
from .plasma import Plasma
from .play import Play
from .sway import Sway

DESKTOPS = {kind.__name__.lower(): kind for kind in (Plasma, Gnome, Sway, Lxqt, Mate)}
PATH = "/usr/bin:/bin:/usr/sbin:/sbin"


def keep_logs(folder, pictures):
    for name in os.listdir(folder):
        if name.endswith(".log"):
            shutil.copy(os.path.join(folder, name), pictures)


def main():
    # Ends by the usual clean-up.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    name, pictures = sys.argv[1:]
    kind = DESKTOPS[name]
    with ExitStack() as cleanup:
        machine = Machine(cleanup)
        os.makedirs(pictures, exist_ok=True)
        cleanup.callback(keep_logs, machine.folder, pictures)
        desktop = kind(machine.folder, machine.account, PATH, cleanup, machine.bus.address)
        desktop.bring_up()
        play = Play(desktop, machine, pictures, cleanup)
        results = play.perform()
        play.album.compose(f"{pictures}.png")
    version = f"{name} {kind.version()}"
    with open(f"{pictures}.md", "w", encoding="utf-8") as file:
        file.write(f"| {version} | {' | '.join(results.values())} |\n")
    return 1 if {"no", "nothing"} & set(results.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
