# Folders of volumes, shown in the desktop's file manager.
# SPDX-License-Identifier: MIT
from contextlib import closing
from urllib.parse import quote

from stage.file_manager import FileManager
from stage.waiting import wait_for

from .story import Story


class Folders(Story):
    def test_a_folder_opens_in_the_file_manager_on_the_bus(self):
        with closing(FileManager(self.stage.session.bus.address)) as manager:
            _stick, folder = self.start_with_writable_stick()
            wait_for(lambda: manager.shown, "the folder is shown")
            self.tray.choose("show the folder of StageData")
            wait_for(lambda: len(manager.shown) == 2, "the folder is shown again")
            self.assertEqual({url for url, _token in manager.shown}, {f"file://{quote(folder)}/"})
        self.assertEqual(self.stage.session.folders_shown(), [])
