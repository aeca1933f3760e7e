# Which commands the documents name, and the table of what holds them to be right.
# SPDX-License-Identifier: MIT
from dataclasses import dataclass, field

# Words that begin a command where they stand in backquotes, with more words behind them.
PROGRAMS = set("""
    apt apt-get awk bash brew brisel brisel-console brisel-dialog brisel-macos-stage brisel-simulator cat
    chkdsk clang-format clang-tidy cmake codesign cp cpack ctest curl defaults dpkg gdb git grep hdiutil
    journalctl kill killall launchctl ln log losetup ls make mkdir mkntfs modprobe mount mount_ntfs mv
    ninja ntfs-3g ntfsfix open pip pkexec pkill powercfg python3 rm rmdir sed sh shasum stat sudo
    systemctl tccutil udisksctl umount valgrind xattr xcode-select xcrun
""".split())
# These are commands also without a word behind them.
ALONE = {"make", "ctest"}
# Its spans are commands to the simulator; another test looks at them.
OTHER_LANGUAGE = "docs/simulator.md"


def is_command(span, root):
    """Whether a reader takes what stands in backquotes for something to type."""
    first, *others = span.split()
    if first.startswith("scripts/"):
        return (root / first).is_file()
    if first.startswith(("build/bin/", "./", "/usr/bin/")):
        return bool(others)
    return first in (PROGRAMS if others else ALONE)


def named_commands(documents, root):
    """Each command, with the places where it is."""
    places = {}
    for document in documents:
        found = list(document.typed())
        if document.name != OTHER_LANGUAGE:
            found += [(line, span) for line, span in document.spans() if is_command(span, root)]
        for line, command in found:
            places.setdefault(command, []).append(f"{document.name}:{line}")
    return places


@dataclass
class Account:
    """One command of the table; `ways` are pairs of a word and what stands behind it."""

    command: str
    line: int
    ways: list = field(default_factory=list)


def read_accounts(file):
    """The table, from top to bottom."""
    accounts = []
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        if not line.startswith(" "):
            accounts.append(Account(line.strip(), number))
            continue
        way, _, rest = line.strip().partition(":")
        if way.startswith("part of make "):
            way, rest = "part of make", way.removeprefix("part of make ")
        accounts[-1].ways.append((way, rest.strip()))
    return accounts
