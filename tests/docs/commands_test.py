# Checks that each command which the documents name is right, by what commands.txt says of it.
# SPDX-License-Identifier: MIT
#
# usage: commands_test.py ROOT BUILD PROGRAMS
import pathlib
import re
import sys

from accounts import named_commands, read_accounts
from documents import all_documents
from house import House
from ways import Ways

TABLE = "tests/docs/commands.txt"
KINDS = ("sh", "console", "text", "cpp", "objc", "cmake", "python", "xml", "ini", "json")


def complaints_about_blocks(documents):
    for document in documents:
        for block in document.blocks:
            if block.kind not in KINDS:
                yield (f"{document.name}:{block.line}: say behind the fence what the block is: sh for "
                       "commands, console for what a program prints, text for anything else.")


def complaints_about_options(house, documents):
    """Options for CMake that stand alone."""
    for document in documents:
        for line, span in document.spans():
            name = span.removeprefix("-D").partition("=")[0]
            if span.startswith("-D") and not re.search(rf"\b{name}\b", house.cmake_text):
                yield f"{document.name}:{line}: CMake is told nothing of {name}."


def complaints_about_table(accounts, places):
    """Commands that only one of the two has."""
    accounted = [account.command for account in accounts]
    for command, where in places.items():
        if command not in accounted:
            yield (f"{where[0]}: nothing holds `{command}` to be right: give it an entry in {TABLE}, "
                   "which says how.")
    for account in accounts:
        if account.command not in places:
            yield (f"{TABLE}:{account.line}: `{account.command}` is in no document any more: remove "
                   "it here.")
        if accounted.count(account.command) > 1:
            yield f"{TABLE}:{account.line}: `{account.command}` is here twice."


def complaints(house):
    """A sentence for all that is wrong."""
    documents = all_documents(house.root)
    accounts = read_accounts(house.root / TABLE)
    yield from complaints_about_blocks(documents)
    yield from complaints_about_options(house, documents)
    yield from complaints_about_table(accounts, named_commands(documents, house.root))
    ways = Ways(house)
    for account in accounts:
        for complaint in (*house.complaints(account.command), *ways.complaints(account)):
            yield f"{TABLE}:{account.line}: `{account.command}`: {complaint}."
    yield from (f"{complaint}." for complaint in ways.complaints_at_the_end())


def main():
    found = list(complaints(House(*(pathlib.Path(word).resolve() for word in sys.argv[1:4]))))
    for complaint in found:
        print(complaint)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
