# The list of mutants: small mistakes in the core, and where in its sources each belongs.
# SPDX-License-Identifier: MIT
#
# FOLDER/FILE.mutants lists those of src/FOLDER/FILE. A paragraph is the function's name, or
# "(declarations)" for what stands outside of all functions; the words there, each line after "- ";
# what to put in their place, each line after "+ ", nothing for words that are left out; and, where
# nobody can see the mistake, "survives: " and why. White space is any white space. The words stand
# exactly once in the function.
import bisect
import dataclasses
import pathlib
import re

FOLDERS = ("app", "mounting", "privileged", "volumes")
DECLARATIONS = "(declarations)"

# What looks like code and is none: texts, comments, the preprocessor's lines.
NO_CODE = re.compile(
    r'R"\(.*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'|//[^\n]*|/\*.*?\*/|^#[^\n]*',
    re.DOTALL | re.MULTILINE)
FUNCTION_NAME = re.compile(r"([\w:~]*operator\(\)|[\w:~]+)\s*\(")


class ListError(Exception):
    """The list of mutants is wrong; says where and how."""


@dataclasses.dataclass(frozen=True)
class Function:
    name: str
    start: int
    end: int


@dataclasses.dataclass(frozen=True)
class Mutant:
    source: str
    line: int
    function: str
    before: str
    after: str
    survives: str

    def __str__(self):
        return f"{self.source}:{self.line}"


def without_texts(source):
    """The source with blanks for whatever is no code, as long as before."""
    return NO_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), source)


def scope_of(head):
    """What a brace opens after this head: a kind, and a name if it is one of the program's."""
    head = re.sub(r"\b(public|private|protected):", "", head)
    while (shorter := re.sub(r"<[^<>]*>", "", head)) != head:
        head = shorter
    named = re.search(r"\b(namespace|enum|class|struct)\b\s*(?:class\s+)?([\w:]*)", head)
    if named and "(" not in head:
        return named[1], named[2]
    called = FUNCTION_NAME.search(head)
    return ("function", called[1]) if called else ("values", "")


def functions(source):
    """Every function that is defined in this source, with its place from its head on."""
    plain, found, scopes, begin = without_texts(source), [], [], 0
    for mark in re.finditer("[{};]", plain):
        if mark[0] == "{":
            outside = all(kind in ("namespace", "class", "struct") for kind, _, _ in scopes)
            kind, name = scope_of(plain[begin : mark.start()]) if outside else ("inside", "")
            scopes.append((kind, name, begin))
        elif mark[0] == "}":
            kind, name, start = scopes.pop()
            if kind == "function":
                classes = [outer for kind, outer, _ in scopes if kind in ("class", "struct")]
                found.append(Function("::".join(classes + [name]), start, mark.end()))
        begin = mark.end()
    return found


def areas(source, name):
    """The places where a mutant of this function may be: start and end of each."""
    known = functions(source)
    if name != DECLARATIONS:
        return [(each.start, each.end) for each in known if each.name == name]
    ends = [0] + [each.end for each in known]
    return list(zip(ends, [each.start for each in known] + [len(source)]))


def place(mutant, source):
    """Where the mutant's words stand in the source: start and end."""
    words = re.compile(r"\s+".join(map(re.escape, mutant.before.split())))
    where = areas(source, mutant.function)
    if not where:
        raise ListError(f"{mutant}: src/{mutant.source} has no function {mutant.function}")
    found = [each.span() for start, end in where for each in words.finditer(source, start, end)]
    if len(found) != 1:
        times = f"{len(found)} times" if found else "nowhere"
        raise ListError(f"{mutant}: these words stand {times} in {mutant.function}: "
                        f"{mutant.before}")
    return found[0]


def mutated(mutant, source):
    """The source with the mistake in it."""
    start, end = place(mutant, source)
    return source[:start] + mutant.after + source[end:]


def read_paragraph(source, line, paragraph):
    """One mutant out of the numbered lines of its paragraph."""
    parts = {"- ": [], "+ ": [], "survives: ": []}
    name, *rest = paragraph
    for text in rest:
        mark = next((mark for mark in parts if text.startswith(mark)), None)
        if mark is None or not text[len(mark) :].strip():
            raise ListError(f"{source}:{line}: no words after \"- \", \"+ \" or \"survives: \" here: "
                            f"{text}")
        parts[mark].append(text[len(mark) :])
    before, after, reason = ("\n".join(lines) for lines in parts.values())
    if not before or before.split() == after.split():
        raise ListError(f"{source}:{line}: {name}: a mutant that changes nothing")
    return Mutant(source, line, name, before, after, reason)


def read_list(text, source):
    """The mutants in the text of one list, the mutants of that source."""
    starts = [0] + [end.end() for end in re.finditer("\n", text)]
    found = []
    for paragraph in re.finditer(r"(?:^[^\n]+(?:\n|\Z))+", text, re.MULTILINE):
        lines = [line for line in paragraph[0].splitlines() if not line.startswith("#")]
        if lines:
            line = bisect.bisect(starts, paragraph.start())
            found.append(read_paragraph(source, line, lines))
    return found


def sources(root):
    """The names of the core's sources, such as app/AppDelegate.cpp."""
    base = pathlib.Path(root) / "src"
    return sorted(str(file.relative_to(base)) for folder in FOLDERS
                  for file in (base / folder).glob("*.*") if file.suffix in (".cpp", ".h"))


def lists(root):
    """The names of the sources that have a list."""
    base = pathlib.Path(root) / "tests" / "mutation"
    return sorted(str(file.relative_to(base)).removesuffix(".mutants")
                  for file in base.glob("*/*.mutants"))


def read(root):
    """Every mutant of the tree."""
    found = []
    for source in lists(root):
        file = pathlib.Path(root) / "tests" / "mutation" / (source + ".mutants")
        found += read_list(file.read_text(encoding="utf-8"), source)
    return found
