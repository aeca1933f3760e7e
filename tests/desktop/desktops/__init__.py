# Real desktops of Debian's packages, and a play on each.
# SPDX-License-Identifier: MIT
