# The tree and its build: what is there for a command to name.
# SPDX-License-Identifier: MIT
import functools
import json
import os
import re
import shlex
import subprocess

PLACEHOLDER = re.compile(r"^[A-Z]+(/|$)")
# Families of tests that some builds leave out.
NOT_IN_EVERY_BUILD = ("macos-stage", "desktop")


class House:
    """A source tree, a build of it, and the folder of the built programs."""

    def __init__(self, root, build, programs):
        self.root = root
        self.build = build
        self.programs = programs

    @functools.cached_property
    def presets(self):
        """The names of the presets that one can give, by the kind."""
        content = json.loads((self.root / "CMakePresets.json").read_text(encoding="utf-8"))
        return {kind: {preset["name"] for preset in content.get(f"{kind}Presets", [])
                       if not preset.get("hidden")} for kind in ("configure", "build", "test")}

    @functools.cached_property
    def cmake_text(self):
        """All that is told to CMake."""
        files = [self.root / "CMakeLists.txt"]
        for folder in ("src", "simulator", "tools", "tests", "benchmarks", "packaging", "cmake"):
            files += [*(self.root / folder).rglob("CMakeLists.txt"),
                      *(self.root / folder).rglob("*.cmake")]
        return "\n".join(file.read_text(encoding="utf-8") for file in files if file.exists())

    @functools.cached_property
    def tests(self):
        """The names of the build's tests."""
        listing = subprocess.run(["ctest", "--test-dir", str(self.build), "-N"], check=True,
                                 capture_output=True, text=True).stdout
        return set(re.findall(r"^ +Test +#\d+: (.*)$", listing, re.MULTILINE))

    def lacks_test(self, name):
        family = name.split(".")[0]
        if family in NOT_IN_EVERY_BUILD and not any(
                test.startswith(f"{family}.") for test in self.tests):
            return False
        return name not in self.tests

    def recipe(self, words):
        """What `make` would do for a target; None where it has none of that name."""
        # As typed, also where another make has started this.
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("MAKEFLAGS", "MAKELEVEL", "MFLAGS")}
        result = subprocess.run(["make", "--no-print-directory", "-n", *words], cwd=self.root,
                                env=environment, capture_output=True, text=True, check=False)
        return None if result.returncode else result.stdout.splitlines()

    def here(self, command):
        """The command with this build's programs and tests in place of the usual ones."""
        command = re.sub(r"\bbuild/(asan/)?bin/", f"{self.programs}/", command)
        return re.sub(r"\bctest --preset \w+", f"ctest --test-dir {self.build}", command)

    def complaints(self, command):
        """What of a command's form, or of what it names, is not there."""
        form = subprocess.run(["sh", "-n", "-c", command], capture_output=True, text=True, check=False)
        if form.returncode:
            yield f"a shell does not understand it: {form.stderr.strip()}"
            return
        words = shlex.split(command)
        yield from self._complaints_about_presets(words)
        for word in words:
            if complaint := self._complaint_about_path(word.removeprefix("./")):
                yield complaint

    def _complaints_about_presets(self, words):
        if words[0] not in ("cmake", "ctest"):
            return
        kind = "test" if words[0] == "ctest" else "build" if "--build" in words else "configure"
        for option, value in zip(words, words[1:]):
            if option == "--preset" and value not in self.presets[kind]:
                yield f"there is no {kind} preset {value}"
            if option == "--target" and not self._has_target(value):
                yield f"there is no target {value}"

    def _has_target(self, name):
        return re.search(rf"\badd_\w+\({re.escape(name)}\s", self.cmake_text)

    def _complaint_about_path(self, word):
        if "/" not in word or re.search(r"[\s=]|://", word) or word[0] in "/~-$" or \
                PLACEHOLDER.match(word):
            return None
        if word.startswith(("build/", "../")):
            return self._complaint_about_product(word)
        return None if any(self.root.glob(word)) else f"there is no {word}"

    def _complaint_about_product(self, word):
        """A program of the build must be one that is built; other products are not looked for."""
        name = re.search(r"\bbin/([\w.-]+)$", word)
        if name and not re.search(rf"(?<![\w-]){re.escape(name.group(1))}(?![\w-])", self.cmake_text):
            return f"nothing builds {word}"
        return None
