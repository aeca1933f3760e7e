# The surroundings of the program: disks, folders, preferences, texts and what the services answer.
# SPDX-License-Identifier: MIT
import collections
import os
import re
import urllib.parse

from folders import Folders, plain

BUSY, NOT_FOUND, NOT_MOUNTED, UNSUPPORTED = 0xF8DA0002, 0xF8DA0006, 0xF8DA0007, 0xF8DA000C


class Ended(Exception):
    """The program has terminated."""


def shown(value):
    """A value in a text, where a missing one shows, too."""
    return "(null)" if value is None else str(value)


def url(path):
    """The URL of a folder."""
    if path is None:
        return None
    folder = path if path.endswith("/") else path + "/"
    return "file://" + urllib.parse.quote(folder, safe="/!$&'()*+,-.:=@_~")


class Disk:
    """A disk: what its description says, whether it is there, and when it was last mounted."""

    def __init__(self, device):
        self.device = device
        self.description = {"device": device, "mountable": "yes"}
        self.writable = False
        self.there = True
        self.mounted_at = 0


class World:
    """All that the program sees and changes; what it does to it is said, an event a line."""

    def __init__(self, resources, out):
        self.resources, self.out = resources, out
        self.system, self.home = 12, "/Users/user"
        self.texts = {}
        self.defaults = {}
        self.disks = {}
        self.folders = Folders()
        self.mounts = 0
        self.refusals = {}
        self.holding, self.held = False, []
        self.queue = collections.deque()
        self.listener = None
        self.tool_status, self.tool_output, self.tool_mounts = 0, "", True
        self.launch_failure, self.launch_missing = 0, False
        self.file_failures = {"create": [], "list": [], "delete": []}
        self.script_failure = None
        self.permission, self.refuse_notification = "allow", False
        self.last_prompt = None
        self.login_items_accept = True
        self.appearance = "NSAppearanceNameAqua"

    def say(self, event):
        self.out.append(event.replace("\n", "\\n"))

    # Texts and preferences.

    def speak(self, language):
        table = os.path.join(self.resources, language + ".lproj", "Localizable.strings")
        if not os.path.exists(table):
            table = os.path.join(self.resources, "en.lproj", "Localizable.strings")
        with open(table, encoding="utf-8") as file:
            pairs = re.findall(r'^"((?:[^"\\]|\\.)*)" = "((?:[^"\\]|\\.)*)";$', file.read(), re.M)
        self.texts = {key.replace('\\"', '"'): text.replace('\\"', '"') for key, text in pairs}

    def text(self, key, *value):
        template = self.texts.get(key, key)
        return template.replace("%@", value[0], 1) if value else template

    def store(self, key, value):
        self.defaults[key] = value
        self.say(f"default: {key} = {self.preference(key)}")

    def preference(self, key):
        value = self.defaults[key]
        if isinstance(value, list):
            return "(" + ", ".join(value) + ")"
        return "YES" if value else "NO"

    # Disks.

    def change(self, disk, changes):
        """Changes a disk; another path mounts it anew."""
        for key, value in changes.items():
            if key == "writable":
                disk.writable = value == "yes"
            elif key == "path" and value:
                if plain(disk.description.get("path")) != plain(value):
                    self.mount(disk, value, disk.writable)
            elif value is None:
                disk.description.pop(key, None)
            else:
                disk.description[key] = value

    def mount(self, disk, path, writable):
        self.mounts += 1
        disk.mounted_at = self.mounts
        disk.description["path"] = path
        disk.writable = writable

    def disk_at(self, path):
        mounted = [disk for disk in self.disks.values()
                   if disk.there and path and plain(disk.description.get("path")) == plain(path)]
        return max(mounted, key=lambda disk: disk.mounted_at, default=None)

    def is_writable(self, path):
        disk = self.disk_at(path)
        return disk is not None and disk.writable

    def description(self, device):
        """What is known of a disk at this moment, or was known of it last."""
        return dict(self.disks[device].description)

    def report(self, disk, what):
        """Tells the program of a disk that it listens for, when the main loop turns."""
        if self.listener and disk.description.get("mountable") == "yes":
            description, listener = dict(disk.description), self.listener
            self.queue.append(lambda: getattr(listener, what)(description))

    def listen(self, listener):
        self.listener = listener
        for disk in self.disks.values():
            if disk.there:
                self.report(disk, "appeared")

    def attach(self, device, changes):
        self.disks.pop(device, None)
        disk = self.disks[device] = Disk(device)
        self.change(disk, changes)
        self.report(disk, "appeared")

    def detach(self, disk):
        self.report(disk, "disappeared")
        disk.there = False
        self.folders.empty(disk.description.get("path"))

    # Requests for disks: judged at once, answered when the main loop turns.

    def unmount(self, device, completion):
        self.say(f"unmount: {device}")
        disk = self.disks.get(device)
        status = self.refusals.pop(("unmount", device), None)
        if status is None:
            status = self.unmount_obstacle(disk)
        if status is None:
            self.folders.empty(disk.description.pop("path"))
            disk.writable = False
        self.answer(lambda: completion(device, status))

    def unmount_obstacle(self, disk):
        if disk is None or not disk.there:
            return NOT_FOUND
        if disk.description.get("mountable") != "yes":
            return UNSUPPORTED
        return None if "path" in disk.description else NOT_MOUNTED

    def mount_with_arguments(self, device, arguments, completion):
        self.say(f"mount: {device} {arguments}")
        disk = self.disks[device]
        status = self.refusals.pop(("mount", device), None)
        if status is None and not disk.there:
            status = NOT_FOUND
        elif status is None and "path" in disk.description:
            status = BUSY
        if status is None:
            self.mount(disk, "/Volumes/" + shown(disk.description.get("name")), True)
        self.answer(lambda: completion(device, status))

    def answer(self, completion):
        (self.held if self.holding else self.queue).append(completion)

    def release(self):
        self.queue.extend(self.held)
        self.holding, self.held = False, []

    # Tools, scripts and files: each answers with what went wrong, or nothing.

    def start_mount_tool(self, arguments):
        failure, self.launch_failure = self.launch_failure, 0
        if failure:
            return failure
        quoted = [f'"{word}"' if set(word) & set(' \t"') else word for word in arguments]
        self.say("run: /sbin/mount_ntfs " + " ".join(quoted))
        disk = self.disks[arguments[2].removeprefix("/dev/")]
        if self.tool_mounts and disk.there:
            self.folders.make(arguments[3])
            self.mount(disk, arguments[3], True)
        return 0

    def run_script(self, source):
        self.say(f"script: {source}")
        failure, self.script_failure = self.script_failure, None
        return failure

    def file_failure(self, operation):
        return self.file_failures[operation].pop(0) if self.file_failures[operation] else None

    def create_folder(self, path):
        self.say(f"mkdir: {path}")
        failure = self.file_failure("create")
        if not failure:
            self.folders.make(path)
        return failure

    def missing_folder(self, operation, path):
        failure = self.file_failure(operation)
        if not failure and not self.folders.is_there(path):
            failure = ("No such file or directory", None)
        return failure

    def delete_folder(self, path):
        self.say(f"delete: {path}")
        failure = self.missing_folder("delete", path)
        if not failure:
            self.folders.remove(path)
        return failure

    def notify(self, device, title, body):
        """Hands a notification to the center; whether it was accepted."""
        refused, self.refuse_notification = self.refuse_notification, False
        if not refused:
            self.last_prompt = ("mount", device)
            self.say(f"notify: id=mount category=MOUNT volume={device} sound=Hero delay=0.2 "
                     f'title="{title}" body="{body}"')
        return not refused
