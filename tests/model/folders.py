# The folders and files that anybody has made.
# SPDX-License-Identifier: MIT
import os


def plain(path):
    """One spelling of a path for all that name the same folder."""
    return path and "/" + os.path.normpath(path).lstrip("/")


class Folders:
    """Folders and files by their paths, in whatever spelling."""

    def __init__(self):
        self.folders, self.files = set(), set()

    def make(self, path):
        path = plain(path)
        while path not in ("", "/"):
            self.folders.add(path)
            path = os.path.dirname(path)

    def make_file(self, path):
        self.make(os.path.dirname(plain(path)))
        self.files.add(plain(path))

    def is_there(self, path):
        return plain(path) == "/" or plain(path) in self.folders

    def within(self, path):
        top = plain(path).rstrip("/") + "/"
        return {entry for entry in self.folders | self.files if entry.startswith(top)}

    def empty(self, path):
        if path and self.is_there(path):
            gone = self.within(path)
            self.folders -= gone
            self.files -= gone

    def remove(self, path):
        self.empty(path)
        self.folders.discard(plain(path))
