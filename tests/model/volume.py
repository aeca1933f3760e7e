# The record of a volume.
# SPDX-License-Identifier: MIT


class Volume:
    def __init__(self, description, label, writable, path=None):
        self.description, self.label, self.writable = description, label, writable
        self.path = path and path.rstrip("/")
        self.device = description["device"]
        uuid = description.get("media-uuid") or description.get("volume-uuid")
        self.uuid = uuid.upper() if uuid else None
        self.prompted = False

    def location(self):
        return self.path or self.description.get("path")
