# Makes the report's NTFS disk again and compares it with the one in the repository.
# SPDX-License-Identifier: MIT
#
# usage: image_test.py ROOT [-v]
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1))
ARCHIVE = ROOT / "scripts/report-on-mac.tar.xz"
MAKE = ROOT / "tests/macos/report/make-image.sh"
START = 64 * 512
FACTS = ("Volume Name", "Volume Flags", "Volume Version", "Sector Size", "Cluster Size",
         "Volume Size in Clusters")


def output(*command):
    return subprocess.run([str(word) for word in command], check=True, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


class Disk:
    def __init__(self, archive, folder):
        folder.mkdir()
        output("tar", "-xf", archive, "-C", folder)
        content = (folder / "ntfs.img").read_bytes()
        self.partitions = content[:START]
        self.size = len(content)
        self.volume = folder / "volume"
        self.volume.write_bytes(content[START:])

    def files(self):
        """Sizes and names, without times."""
        lines = output("ntfsls", "-l", "-s", "-a", self.volume).splitlines()
        return [(line.split()[0], line.split()[-1]) for line in lines]

    def facts(self):
        lines = output("ntfsinfo", "-m", self.volume).splitlines()
        return [line.strip() for line in lines if line.strip().startswith(FACTS)]


class Image(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        folder = pathlib.Path(scratch.name)
        output("sh", MAKE, folder / "new.tar.xz")
        cls.kept = Disk(ARCHIVE, folder / "kept")
        cls.new = Disk(folder / "new.tar.xz", folder / "new")

    def test_is_a_few_kilobytes(self):
        self.assertLess(ARCHIVE.stat().st_size, 8192)

    def test_has_the_partition(self):
        self.assertEqual(self.kept.size, self.new.size)
        self.assertEqual(self.kept.partitions, self.new.partitions)

    def test_has_the_volume_and_its_files(self):
        self.assertEqual(len(self.kept.facts()), len(FACTS))
        self.assertEqual(self.kept.facts(), self.new.facts())
        self.assertIn(("16", "readme.txt"), self.kept.files())
        self.assertEqual(self.kept.files(), self.new.files())
        self.assertEqual(output("ntfscat", self.kept.volume, "readme.txt"), "A file to read.\n")


if __name__ == "__main__":
    unittest.main()
