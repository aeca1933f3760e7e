# A fake file manager on the session bus.
# SPDX-License-Identifier: MIT
from . import bus

NAME = "org.freedesktop.FileManager1"


class FileManager(bus.Service):
    """Records the folders it is asked to show, with the activation tokens."""

    XML = """<node><interface name="org.freedesktop.FileManager1">
      <method name="ShowFolders"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
    </interface></node>"""

    def __init__(self, address):
        super().__init__(bus.connect(address), "/org/freedesktop/FileManager1")
        self.shown = []
        bus.own_name(self.connection, NAME)

    def close(self):
        self.connection.close_sync()

    # Names are those of the D-Bus methods. pylint: disable=invalid-name
    def ShowFolders(self, urls, token):
        self.shown += [(url, token) for url in urls]
        return ()
