# Reads the lines of a scenario: words, and what each command may be followed by.
# SPDX-License-Identifier: MIT
import re


class BadCommand(Exception):
    """A command that cannot be carried out."""


ESCAPES = {'"': '"', "\\": "\\", "n": "\n"}

# What may follow each command of fixed form: a pattern a word, the last one any number of times
# where it ends in a star.
ANY = r".*"
NUMBER = r"-?\d+"
STATUS = r"0[xX][0-9a-fA-F]+|\d+"
FORMS = {
    "system": ["11|12"],
    "home": [ANY],
    "language": [ANY],
    "start": [],
    "press": [ANY],
    "quit": [],
    "report": [ANY],
    "detach": [ANY],
    "refuse": ["unmount|mount", ANY, STATUS],
    "hold": [],
    "release": [],
    "file": [ANY],
    "rmdir": [ANY],
    "notifications": ["allow|deny|error|add-error"],
    "login-items": ["accept|refuse"],
    "appearance": [ANY],
    "show": ["menu|volumes|progress|defaults|folders"],
}
# The others have more than one form, or take keys.
OTHERS = ["default", "choose", "password", "respond", "attach", "set", "tool", "launch", "fail",
          "script"]
DISK_KEYS = ["mountable", "kind", "name", "path", "media-uuid", "volume-uuid", "writable"]


def words(line):
    """The words of a line; quotes may stand anywhere in one."""
    result, word, quoted, position = [], None, False, 0
    while position < len(line):
        letter = line[position]
        position += 1
        if quoted and letter == "\\":
            if line[position : position + 1] not in ESCAPES:
                raise BadCommand("an escape that is none")
            word += ESCAPES[line[position]]
            position += 1
        elif letter == '"':
            quoted, word = not quoted, word or ""
        elif letter in " \t" and not quoted:
            result, word = result + ([word] if word is not None else []), None
        else:
            word = (word or "") + letter
    if quoted:
        raise BadCommand("a quote that is not closed")
    return result + ([word] if word is not None else [])


def demand(condition, complaint):
    if not condition:
        raise BadCommand(complaint)


def checked(command):
    """The arguments of a command of fixed form."""
    name, *arguments = command
    demand(name in FORMS or name in OTHERS, "no such command")
    if name in FORMS:
        demand(len(arguments) == len(FORMS[name]), "too many words, or too few")
        for argument, form in zip(arguments, FORMS[name]):
            demand(re.fullmatch(form, argument, re.DOTALL), "a word that is not known here")
    return arguments


def keys(arguments, known=None):
    """KEY=VALUE words as a dictionary in their order."""
    result = {}
    for argument in arguments:
        key, equals, value = argument.partition("=")
        demand(equals and key, "KEY=VALUE is expected")
        demand(known is None or key in known, "no such key")
        result[key] = value
    return result


def disk_keys(arguments):
    """The keys of a disk; one without a value is to be absent."""
    result = keys(arguments, DISK_KEYS)
    for flag in ("mountable", "writable"):
        demand(result.get(flag, "") in ("yes", "no", ""), "neither yes nor no")
    return {key: value or None for key, value in result.items()}


def number(text, form=NUMBER):
    demand(re.fullmatch(form, text), "no number")
    return int(text, 0) if "x" in text.lower() else int(text)
