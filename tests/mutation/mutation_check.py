#!/usr/bin/env python3
# Breaks the core in small ways, one at a time, and tells which breakages the tests miss.
# SPDX-License-Identifier: MIT
import argparse
import collections
import concurrent.futures
import itertools
import pathlib
import queue
import resource
import sys
import time

import mutants
import workshop

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
# Of a hundred mutants, known survivors included.
FEWEST_CAUGHT = 95
NO_BUILD = "no build"


def chosen(listed, wanted):
    """The mutants of the wanted sources, or those at the wanted lines of their lists."""
    if not wanted:
        return listed
    unknown = set(wanted) - {name for each in listed for name in (str(each), each.source)}
    if unknown:
        raise mutants.ListError(f"no such mutants: {', '.join(sorted(unknown))}")
    return [each for each in listed if str(each) in wanted or each.source in wanted]


def report(mutant, catcher):
    caught = f"caught by {catcher}" if catcher else "SURVIVES"
    print(f"{caught if catcher != NO_BUILD else 'DOES NOT COMPILE':24} {mutant} {mutant.function}",
          flush=True)


def try_mutant(shop, mutant):
    """What catches the mutant."""
    source = (ROOT / "src" / mutant.source).read_text(encoding="utf-8")
    try:
        catcher = shop.caught_by(mutant.source, mutants.mutated(mutant, source))
    except workshop.BuildError as wrong:
        print(wrong)
        catcher = NO_BUILD
    report(mutant, catcher)
    return mutant, catcher


def try_all(shops, listed):
    """Each mutant with what catches it; those of one source stay together, to compile less."""
    free = queue.SimpleQueue()
    for shop in shops:
        free.put(shop)

    def try_source(group):
        shop = free.get()
        try:
            return [try_mutant(shop, mutant) for mutant in group]
        finally:
            free.put(shop)

    groups = [list(group) for _, group in itertools.groupby(listed, lambda each: each.source)]
    # Sources that many others include come last, and the others are not compiled for them.
    groups.sort(key=lambda group: group[0].source.endswith(".h"))
    with concurrent.futures.ThreadPoolExecutor(len(shops)) as pool:
        try:
            return list(itertools.chain.from_iterable(pool.map(try_source, groups)))
        except BaseException:
            for shop in shops:
                shop.stop()
            raise


def show(mutant):
    """A mutant that nothing caught, for people."""
    print(f"  tests/mutation/{mutant.source}.mutants:{mutant.line}: {mutant.function}")
    for mark, words in (("-", mutant.before), ("+", mutant.after)):
        for line in words.splitlines():
            print(f"    {mark} {line}")
    if mutant.survives:
        print(f"    known: {mutant.survives}")


def tell(title, found):
    if found:
        print(title)
        for mutant in found:
            show(mutant)


def verdict(results, whole):
    """Prints what came of it; whether something is wrong."""
    survivors = [mutant for mutant, catcher in results if catcher is None]
    broken = [mutant for mutant, catcher in results if catcher == NO_BUILD]
    missed = [mutant for mutant in survivors if not mutant.survives]
    mistaken = [mutant for mutant, catcher in results if catcher and mutant.survives]
    catchers = collections.Counter(catcher for _, catcher in results
                                   if catcher not in (None, NO_BUILD))
    caught = sum(catchers.values())
    tell("Survivors:", survivors)
    tell("Listed as survivors, and caught:", mistaken)
    tell("Not to be compiled:", broken)
    print(f"{len(results)} mutants, {caught} caught ({100 * caught / len(results):.1f}%), "
          f"{len(survivors)} survive, {len(missed)} of them unknown")
    for catcher, count in catchers.most_common():
        print(f"  {count:4} caught by {catcher}")
    return bool(missed or mistaken or broken
                or whole and 100 * caught < FEWEST_CAUGHT * len(results))


def taken(begin):
    """How long it has taken, by the clock and on processors."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (f"{(time.monotonic() - begin) / 60:.1f} minutes, "
            f"{(used.ru_utime + used.ru_stime) / 60:.1f} of a processor's time")


def arguments():
    parser = argparse.ArgumentParser(
        description="Breaks the core in small ways and tells which breakages the tests miss.")
    parser.add_argument("chosen", nargs="*", metavar="SOURCE[:LINE]",
                        help="only these, such as app/StatusMenu.cpp or app/StatusMenu.cpp:3, the "
                             "line being that of the list; all unless told")
    parser.add_argument("--jobs", type=int, default=1, metavar="N",
                        help="how many at a time, each in a copy of its own")
    return parser.parse_args()


def main():
    wanted = arguments()
    begin = time.monotonic()
    try:
        listed = chosen(mutants.read(ROOT), wanted.chosen)
        folder = ROOT / "build" / "mutation"
        shops = [workshop.Workshop(ROOT, folder / str(job + 1)) for job in range(wanted.jobs)]
        for shop in shops:
            shop.prepare()
        print(f"The tests pass on unbroken sources ({taken(begin)}); "
              f"trying {len(listed)} mutants.", flush=True)
        results = try_all(shops, listed)
    except (mutants.ListError, workshop.BuildError, workshop.TestsFail) as wrong:
        print(wrong, file=sys.stderr)
        return 2
    except KeyboardInterrupt:
        return 130
    wrong = verdict(results, whole=not wanted.chosen)
    print(taken(begin))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
