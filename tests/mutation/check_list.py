#!/usr/bin/env python3
# Checks that the list of mutants fits the sources, and that no function is without one.
# SPDX-License-Identifier: MIT
#
# usage: check_list.py ROOT [FEWEST]
import pathlib
import sys

import mutants

FEWEST = 400


def complaints_about(root, source, listed):
    """What is wrong between one source and its mutants."""
    text = (pathlib.Path(root) / "src" / source).read_text(encoding="utf-8")
    found, places, seen = [], [], set()
    for mutant in listed:
        try:
            places.append(mutants.place(mutant, text))
        except mutants.ListError as wrong:
            found.append(str(wrong))
        made = (mutant.function, mutant.before, mutant.after)
        if made in seen:
            found.append(f"{mutant}: listed twice")
        seen.add(made)
    for function in mutants.functions(text):
        if not any(function.start <= start and end <= function.end for start, end in places):
            found.append(f"src/{source}: no mutant of {function.name}; "
                         f"tests/mutation/{source}.mutants wants one")
    return found


def complaints(root, fewest):
    """What is wrong with the whole list."""
    try:
        listed = mutants.read(root)
    except mutants.ListError as wrong:
        return [str(wrong)]
    known = mutants.sources(root)
    found = [f"tests/mutation/{source}.mutants: there is no src/{source}"
             for source in mutants.lists(root) if source not in known]
    for source in known:
        found += complaints_about(root, source, [each for each in listed if each.source == source])
    if len(listed) < fewest:
        found.append(f"{len(listed)} mutants; there were at least {fewest}")
    return found


def main():
    found = complaints(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else FEWEST)
    print("\n".join(found) or f"{len(mutants.read(sys.argv[1]))} mutants, all fit the sources")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
