# Folders of volumes, shown in the desktop's file manager.
# SPDX-License-Identifier: MIT
import os
from contextlib import closing
from urllib.parse import quote

from stage.file_manager import FileManager
from stage.waiting import wait_for

from .story import Story


class Folders(Story):
    """Tests which program opens a folder."""

    def test_a_folder_opens_in_the_file_manager_on_the_bus(self):
        with closing(FileManager(self.stage.session.bus.address)) as manager:
            self.start_brisel()
            folder = self.make_writable(self.attach("StageData"))
            wait_for(lambda: manager.shown, "the folder is shown")
            self.tray.choose("show the folder of StageData")
            wait_for(lambda: len(manager.shown) == 2, "the folder is shown again")
            self.assertEqual({url for url, _token in manager.shown}, {f"file://{quote(folder)}/"})
        self.assertEqual(self.stage.session.folders_shown(), [])

    def test_a_file_manager_that_cannot_start_is_logged(self):
        mark = f"{self.stage.account.home}/broken"
        with open(mark, "w", encoding="ascii"):
            self.addCleanup(os.remove, mark)
        self.start_brisel()
        self.make_writable(self.attach("StageData"))
        self.brisel.wait_for_log("The stage's file manager cannot open the folder: ")
