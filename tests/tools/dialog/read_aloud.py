#!/usr/bin/python3
# Starts a program and prints the accessibility tree of its window.
# SPDX-License-Identifier: MIT
#
# usage: dbus-run-session -- read_aloud.py PROGRAM ARGUMENT...; PROGRAM gets the standard input
import subprocess
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def print_tree(node):
    """Prints ROLE|NAME|STATES for the node and, below it, for its descendants."""
    states = sorted(state.value_nick for state in node.get_state_set().get_states())
    print(node.get_role_name(), node.get_name(), " ".join(states), sep="|")
    for index in range(node.get_child_count()):
        print_tree(node.get_child_at_index(index))


Atspi.init()
program = subprocess.Popen(sys.argv[1:], stdout=subprocess.PIPE)
try:
    program.stdout.readline()
    desktop = Atspi.get_desktop(0)
    for number in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(number)
        if application.get_process_id() == program.pid:
            print_tree(application)
finally:
    program.terminate()
    program.wait()
