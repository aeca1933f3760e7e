# A desktop for tests: a person, a session with a panel, disks, and the program among them.
# SPDX-License-Identifier: MIT
