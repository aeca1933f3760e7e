# Checks the report of a Mac with stand-ins for the Mac's tools.
# SPDX-License-Identifier: MIT
#
# usage: report_test.py ROOT [-v]
import pathlib
import sys
import tempfile
import unittest

from fake_mac import FakeMac

ROOT = pathlib.Path(sys.argv.pop(1))
SCRIPT = ROOT / "scripts/report-on-mac"
OPTIONS = "rw,auto,nobrowse,noowners,noatime"
TELL_ARGUMENTS = 'echo "of $*"\n'
# The mount table is a file beside the tools.
HERE = 'here=$(dirname "$0")/..\n'
MOUNT = """\
mount_at() {
    mkdir -p "$1"
    echo 'A file to read.' >"$1/readme.txt"
    echo "/dev/disk4s1 on $1 ($2)" >"$here/mounts"
}
"""
TOOLS = {
    "uname": "case $1 in -m) echo arm64 ;; *) echo ${SYSTEM:-Darwin} ;; esac\n",
    "sw_vers": "echo ProductVersion: 14.1\n",
    "pgrep": '[ -n "$RUNNING" ]\n',
    "ls": TELL_ARGUMENTS,
    "find": TELL_ARGUMENTS,
    "plutil": TELL_ARGUMENTS,
    "pluginkit": "",
    "log": '[ -z "$STOP" ] || { kill -TERM $PPID; sleep 0.2; }\n',
    "defaults": 'echo "${AT_LOGIN:-0}"\n',
    "codesign": "",
    "xcode-select": '[ -z "$NO_COMPILER" ]\n',
    "mount": HERE + 'cat "$here/mounts" 2>/dev/null\n',
    # As root, a test can write to any folder.
    "touch": HERE + '! grep -q read-only "$here/mounts" && exec /usr/bin/touch "$@"\n',
    "hdiutil": HERE + """\
case $1 in
attach)
    [ -z "$NO_IMAGE" ] || exit 1
    touch "$here/attached"
    printf '/dev/disk4  \\tFDisk_partition_scheme\\t\\n/dev/disk4s1\\tWindows_NTFS\\t\\n'
    ;;
detach) rm "$here/attached" ;;
esac
""",
    "diskutil": HERE + MOUNT + """\
case $* in
info*) echo "Type (Bundle): ntfs" ;;
*mountOptions*) mount_at "$here/volume" "${MADE:-ntfs, local, read-only}" ;;
mount*) mount_at "$here/volume" "ntfs, local, read-only, noowners" ;;
unmount*)
    rm "$(sed 's/.* on \\(.*\\) (.*/\\1/' "$here/mounts")/readme.txt"
    : >"$here/mounts"
    ;;
esac
""",
    "sudo": HERE + MOUNT + """\
[ -z "$REFUSED" ] || { echo "mount_ntfs: refused" && exit 74; }
for folder; do :; done
mount_at "$folder" "lifs, local, noowners, mounted by alice"
""",
    "xcrun": """\
for program; do :; done
printf '#!/bin/sh\\necho "answer: $1"\\n' >"$program"
chmod +x "$program"
""",
}


class Report(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name).resolve()
        self.mac = FakeMac(self.folder / "mac", TOOLS)
        self.temporary = self.folder / "tmp"
        self.temporary.mkdir()
        self.application = self.folder / "built/Brisel.app"
        (self.application / "Contents/MacOS").mkdir(parents=True)
        (self.application / "Contents/MacOS/Brisel").write_text("built")
        self.file = self.folder / "report.txt"

    def report(self, *options, **environment):
        return self.mac.run(SCRIPT, *options, self.application, self.file, HOME=self.folder,
                            TMPDIR=self.temporary, **environment)

    def text(self, *options, **environment):
        result = self.report(*options, **environment)
        self.assertEqual(result.returncode, 0, result.stdout)
        return self.file.read_text()

    def section(self, title, text):
        return text.split(f"== {title}")[1].split("\n== ")[0]

    def assert_undone(self):
        self.assertEqual(list(self.temporary.iterdir()), [])
        self.assertFalse((self.folder / "mac/attached").exists())
        self.assertEqual([entry.name for entry in self.application.parent.iterdir()],
                         ["Brisel.app"])
        self.assertEqual((self.application / "Contents/MacOS/Brisel").read_text(), "built")


class Facts(Report):
    def test_are_those_of_system_and_drivers(self):
        text = self.text()
        self.assertIn("ProductVersion: 14.1\n", text)
        self.assertIn("arm64\n", text)
        drivers = self.section("NTFS drivers", text)
        for path in ("/sbin/mount_ntfs", "/System/Library/Filesystems/ntfs.fs",
                     "/System/Library/Extensions/ntfs.kext"):
            self.assertIn(f" {path}", drivers)

    def test_are_the_kind_of_the_volume_and_its_mounts(self):
        text = self.text(MADE="ntfs, local, noowners")
        self.assertIn("Type (Bundle): ntfs", self.section("Disk Arbitration", text))
        for title, kind, verdict in (("The system's own", "ntfs, local, read-only", "No file can"),
                                     ("Mount by Disk", "ntfs, local, noowners", "A file can"),
                                     ("Mount by mount_ntfs", "lifs, local", "A file can")):
            with self.subTest(title=title):
                section = self.section(title, text)
                self.assertIn(f"({kind}", section)
                self.assertIn(f"{verdict} be written.", section)
                self.assertIn("A file to read.", section)

    def test_are_the_failures_of_tools(self):
        section = self.section("Mount by mount_ntfs", self.text(REFUSED="yes"))
        self.assertIn("mount_ntfs: refused\nexit status 74\nnot mounted\n", section)

    def test_are_the_answers_to_the_application(self):
        section = self.section("The system's answers", self.text())
        for question in ("lookup", "notifications", "login-item"):
            self.assertIn(f"answer: {question}\n", section)

    def test_name_no_user(self):
        text = self.text()
        self.assertNotIn(str(self.folder / "built"), text)
        self.assertNotIn("alice", text)
        self.assertIn("~/built/Brisel.app", text)


class Options(Report):
    def test_are_those_of_the_remount(self):
        self.text()
        self.assertIn(f"mount -mountOptions {OPTIONS} /dev/disk4s1", self.mac.calls("diskutil"))
        self.assertTrue(self.mac.calls("sudo")[0].startswith(
            f"/sbin/mount_ntfs -o {OPTIONS} /dev/disk4s1 {self.temporary}"))

    def test_match_the_application_s(self):
        source = (ROOT / "src/mounting/MountTool.cpp").read_text(encoding="utf-8")
        self.assertIn(f'"{OPTIONS}"', source)


class Root(Report):
    def test_runs_mount_ntfs_only(self):
        self.text()
        self.assertEqual(len(self.mac.calls("sudo")), 1)

    def test_is_never_asked_for_with_the_option(self):
        text = self.text("--no-root")
        self.assertEqual(self.mac.calls("sudo"), [])
        self.assertNotIn("mount_ntfs as root", text)


class Traces(Report):
    def test_are_removed(self):
        self.text()
        self.assert_undone()

    def test_are_removed_after_an_interruption(self):
        self.assertNotEqual(self.report(STOP="yes").returncode, 0)
        self.assert_undone()

    def test_are_removed_without_an_image(self):
        self.assertIn("could not be attached", self.text(NO_IMAGE="yes"))
        self.assert_undone()

    def test_leave_start_at_login_alone(self):
        text = self.text(AT_LOGIN="1")
        self.assertIn("Start at Login is on", text)
        self.assertNotIn("answer: login-item", text)

    def test_need_a_compiler(self):
        text = self.text(NO_COMPILER="yes")
        self.assertIn("Command Line Tools are missing", text)
        self.assert_undone()


class Refusals(Report):
    def assert_fails(self, sentence, **environment):
        result = self.report(**environment)
        self.assertNotEqual(result.returncode, 0)
        self.assertIn(sentence, result.stdout)
        self.assertFalse(self.file.exists())
        self.assertEqual(self.mac.calls("hdiutil"), [])

    def test_are_reported(self):
        self.assert_fails("Only a Mac", SYSTEM="Linux")
        self.assert_fails("Quit Brisel first", RUNNING="yes")

    def test_keep_a_file_of_the_copy_s_name(self):
        copy = self.application.parent / "Brisel-report.app"
        copy.write_text("mine")
        self.assert_fails("Move")
        self.assertEqual(copy.read_text(), "mine")


if __name__ == "__main__":
    unittest.main()
