# A test desktop: a user account, a session with a panel, disks, and the program.
# SPDX-License-Identifier: MIT
