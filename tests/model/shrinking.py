# Finds the fewest lines of a scenario that still show a failure.
# SPDX-License-Identifier: MIT

# So many commands may be possible only together: an alert is called up, answered, and followed.
FEW = 3


def without_some(lines, size, fails):
    """Drops runs of that many lines where it fails all the same."""
    start = 0
    while start < len(lines):
        fewer = lines[:start] + lines[start + size :]
        if fails(fewer):
            lines = fewer
        else:
            start += size if size > FEW else 1
    return lines


def shrunk(lines, fails):
    """The fewest of these lines with which it fails; with all of them it does."""
    before = None
    while before != lines:
        before, size = lines, len(lines) // 2
        while size:
            lines = without_some(lines, size, fails)
            size = size - 1 if size <= FEW else max(size // 2, FEW)
    return lines
