# What a person does with Brisel, and what comes of it.
# SPDX-License-Identifier: MIT
