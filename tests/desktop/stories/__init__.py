# Stories: what a user does with Brisel, and the result.
# SPDX-License-Identifier: MIT
