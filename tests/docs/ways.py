# The ways of holding a command to be right; each yields a sentence for what is wrong.
# SPDX-License-Identifier: MIT
import hashlib
import os
import pathlib
import shutil
import subprocess
import tempfile

PATIENCE = 60
# A Mac's, as far as they are used: its sed wants a word, perhaps an empty one, behind -i.
MAC_TOOLS = {
    "sed": 'if [ "$1" = -i ]; then [ -z "$2" ] || exit 1; shift 2; exec {sed} -i "$@"; fi\n'
           'exec {sed} "$@"\n',
    "shasum": '[ "$1 $2" = "-a 256" ] || exit 1\nshift 2\nexec {sha256sum} "$@"\n'}


def shell(command, folder, **environment):
    return subprocess.run(["sh", "-ec", command], cwd=folder, env={**os.environ, **environment},
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace",
                          timeout=PATIENCE, check=False)


class Ways:
    """One method a way, by its word; what is run is run once all have been read."""

    def __init__(self, house):
        self._house = house
        self._at_home = []
        self._for_cask = []
        self._output = None

    def complaints(self, account):
        """All that is wrong with one account."""
        if not account.ways:
            yield "nothing holds it to be right"
        for way, rest in account.ways:
            method = getattr(self, way.replace(" ", "_"), None)
            if way.startswith("_") or method is None:
                yield f'there is no way "{way}"'
            else:
                yield from method(account.command, rest)

    def run(self, command, instead):
        """Runs it, unless the machine or the build lacks the program."""
        words, others = command.split(), (instead or command).split()
        if words[0] != others[0]:
            yield f"{others[0]} is run instead of {words[0]}"
            return
        self._output = None
        here = self._house.here(instead or command)
        if shutil.which(here.split()[0]) is None:
            print(f"Not run, for {here.split()[0]} is not here: {command}")
            return
        result = shell(here, self._house.root)
        if result.returncode:
            yield f"it ends with {result.returncode}: {result.stdout[-400:]}{result.stderr[-400:]}"
        self._output = result.stdout

    def prints(self, _command, file):
        expected = (self._house.root / file).read_text(encoding="utf-8")
        if self._output is not None and self._output != expected:
            yield f"it does not print what is in {file}"

    def make(self, command, _rest):
        recipe = self._house.recipe(command.split()[1:])
        if recipe is None:
            yield "make does not know that target"
        elif all(line.startswith("make: ") for line in recipe):
            yield "make does nothing for that target"
        for line in recipe or ():
            for complaint in self._house.complaints(line):
                yield f"its step `{line}`: {complaint}"

    def part_of_make(self, command, target):
        whole = self._house.recipe([target]) or []
        for line in self._house.recipe(command.split()[1:]) or ():
            if line not in whole and not line.startswith("scripts/install-needs"):
                yield f"`make {target}` does not do `{line}`"

    def ci(self, command, _rest):
        if command not in (self._house.root / ".ci/run").read_text(encoding="utf-8").splitlines():
            yield ".ci/run does not run it"

    def test(self, _command, name):
        if self._house.lacks_test(name):
            yield f"there is no test {name}"

    def holds(self, _command, rest):
        file, _, text = rest.partition(": ")
        path = self._house.root / file
        if not path.exists():
            yield f"there is no {file}"
        elif text not in path.read_text(encoding="utf-8"):
            yield f"{file} does not have: {text}"

    def person(self, _command, why):
        if not why:
            yield "it is not said why nobody but a person can run it"

    def named(self, _command, why):
        if not why:
            yield "it is not said why it is named"

    def home(self, command, _rest):
        self._at_home.append(command)
        yield from ()

    def cask(self, command, _rest):
        self._for_cask.append(command)
        yield from ()

    def complaints_at_the_end(self):
        """Of the commands that belong together."""
        with tempfile.TemporaryDirectory() as scratch:
            folder = pathlib.Path(scratch)
            if self._at_home:
                yield from self._complaints_at_home(folder / "home")
            if self._for_cask:
                yield from self._complaints_about_cask(folder / "tree", folder / "tools")

    def _complaints_at_home(self, home):
        for file in (".config/brisel/preferences.conf", ".config/brisel/preferences.conf.1",
                     ".config/autostart/org.brisel.Brisel.desktop"):
            (home / file).parent.mkdir(parents=True, exist_ok=True)
            (home / file).touch()
        (home / ".brisel").mkdir()
        for command in self._at_home:
            result = shell(command, home, HOME=str(home))
            if result.returncode:
                yield f"`{command}` fails: {result.stderr.strip()}"
        for path in home.rglob("*"):
            if "brisel" in path.name.lower():
                yield f"the commands for removing Brisel leave {path.relative_to(home)}"

    def _complaints_about_cask(self, tree, tools):
        (tree / "build/packages").mkdir(parents=True)
        (tree / "packaging").mkdir()
        image = tree / "build/packages/Brisel-1.2.3.dmg"
        image.write_text("an image")
        cask = shutil.copy(self._house.root / "packaging/brisel.rb", tree / "packaging")
        tools.mkdir()
        for name, text in MAC_TOOLS.items():
            text = text.format(sed=shutil.which("sed"), sha256sum=shutil.which("sha256sum"))
            (tools / name).write_text(f"#!/bin/sh\n{text}")
            (tools / name).chmod(0o755)
        result = shell("\n".join(self._for_cask), tree, PATH=f"{tools}:{os.environ['PATH']}")
        sum_line = f'  sha256 "{hashlib.sha256(image.read_bytes()).hexdigest()}"\n'
        if result.returncode or sum_line not in pathlib.Path(cask).read_text(encoding="utf-8"):
            yield f"the checksum does not get into packaging/brisel.rb: {result.stderr.strip()}"
