# Services of the machine, and temporary udev and polkit rules for the stage.
# SPDX-License-Identifier: MIT
import glob
import os
import shutil
import subprocess

from gi.repository import GLib

from . import bus
from .account import NAME
from .programs import run
from .sticks import attached_to, detach
from .waiting import wait_for

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", "..", ".."))
DISK_SERVICES = os.path.join(ROOT, "scripts", "disk-services")

UDEV_RULES = "/run/udev/rules.d/90-brisel-stage.rules"
UDEV_TEXT = """# For tests of Brisel: its disk images look like USB sticks.
SUBSYSTEM=="block", KERNEL=="loop*", ATTR{{loop/backing_file}}=="{folder}/*", \\
  ENV{{UDISKS_SYSTEM}}="0", ENV{{UDISKS_AUTO}}="1"
"""
POLKIT_RULES = "/etc/polkit-1/rules.d/10-brisel-stage.rules"
# UDisks2 actions that a user at the machine may do without a password, and those of its owner.
# Without a login manager there are no seats, so the rule grants the actions of other seats too.
ALLOWED = ("org.freedesktop.udisks2.filesystem-mount",
           "org.freedesktop.udisks2.filesystem-mount-other-seat",
           "org.freedesktop.udisks2.filesystem-unmount-others")
POLKIT_TEXT = """// For tests of Brisel: its person may use sticks, and is the administrator.
polkit.addRule(function(action, subject) {{
    if (subject.user == "{name}" && {allowed}.indexOf(action.id) >= 0) {{
        return polkit.Result.YES;
    }}
}});
polkit.addAdminRule(function(action, subject) {{
    if (subject.user == "{name}") return ["unix-user:{name}"];
}});
"""
MOUNT_TOOL = "/usr/sbin/mount_ntfs"
POLICY = "/usr/share/polkit-1/actions/org.brisel.policy"
POLICY_SOURCE = os.path.join(ROOT, "resources", "linux", "org.brisel.policy")
# Marks the installed tool and policy as the stage's, and not a package's.
INSTALLED_MARK = "/run/brisel-stage.installed"
TOOL_ACTION = "org.brisel.run-mount-tool"
AUTHORITY = ("org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
             "org.freedesktop.PolicyKit1.Authority")


def start_disk_services(cleanup):
    """Starts the system bus, udev and UDisks2; `cleanup` stops them if they were not running
    before."""
    if not disk_services_run():
        cleanup.callback(subprocess.run, [DISK_SERVICES, "stop"], check=False)
    run(DISK_SERVICES, "start")


def disk_services_run():
    try:
        connection = bus.system_bus()
    except GLib.Error:
        return False
    return bus.has_owner(connection, "org.freedesktop.UDisks2")


def disk_service_is_ours():
    """True if the tests started UDisks2 and so may stop it."""
    return bool(run(DISK_SERVICES, "udisks-process"))


def write_for_a_while(path, text, cleanup):
    """Writes a system file that `cleanup` removes."""
    cleanup.callback(remove, path)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(path, 0o644)


def remove(path):
    if os.path.exists(path):
        os.remove(path)


def announce_sticks(folder, cleanup):
    """Makes udev treat the images in `folder` as USB sticks."""
    cleanup.callback(run, "udevadm", "control", "--reload")
    write_for_a_while(UDEV_RULES, UDEV_TEXT.format(folder=folder), cleanup)
    run("udevadm", "control", "--reload")


def start_time(pid):
    """The start time of a process in clock ticks, which polkit uses to identify it."""
    with open(f"/proc/{pid}/stat", encoding="ascii", errors="replace") as file:
        return int(file.read().rpartition(")")[2].split()[19])


def subject(pid):
    """A process as a polkit subject."""
    return ("unix-process", {"pid": GLib.Variant("u", pid),
                             "start-time": GLib.Variant("t", start_time(pid))})


def is_allowed(connection, pid, action):
    """True if polkit authorizes the process without a prompt."""
    name, path, interface = AUTHORITY
    answer = bus.call(connection, name, path, f"{interface}.CheckAuthorization",
                      "((sa{sv})sa{ss}us)", subject(pid), action, {}, 0, "")
    return answer[0][0]


def knows_action(connection, action):
    name, path, interface = AUTHORITY
    actions = bus.call(connection, name, path, f"{interface}.EnumerateActions", "(s)", "")[0]
    return any(one[0] == action for one in actions)


def grant_rights(pid, cleanup):
    """Lets the user of process `pid` use sticks, and makes them an administrator."""
    text = POLKIT_TEXT.format(name=NAME, allowed=list(ALLOWED))
    write_for_a_while(POLKIT_RULES, text, cleanup)
    connection = bus.system_bus()
    wait_for(lambda: all(is_allowed(connection, pid, action) for action in ALLOWED),
             "polkit has read the stage's rules")


def obstacle_to_mount_tool(built):
    """The reason why the mount tool cannot be installed; None if it can."""
    for source, place in ((built, MOUNT_TOOL), (POLICY_SOURCE, POLICY)):
        if not os.path.exists(source):
            return f"there is no {source}"
        if os.path.exists(place):
            return f"{place} is there already"
    return None


def install_mount_tool(built, cleanup):
    """Installs the mount tool and its policy where a package would; `cleanup` removes them."""
    connection = bus.system_bus()
    cleanup.callback(remove, INSTALLED_MARK)
    with open(INSTALLED_MARK, "w", encoding="ascii"):
        pass
    for source, place, mode in ((built, MOUNT_TOOL, 0o755), (POLICY_SOURCE, POLICY, 0o644)):
        cleanup.callback(remove, place)
        shutil.copy(source, place)
        os.chmod(place, mode)
    wait_for(lambda: knows_action(connection, TOOL_ACTION), "polkit knows the mount tool")


def remove_leftovers(folders):
    """Removes what a killed run left; its folders began with `folders`."""
    for file in glob.glob(f"{folders}*/images/*.img"):
        for device in attached_to(file):
            detach(device)
    for folder in glob.glob(f"{folders}*"):
        shutil.rmtree(folder)
    remove(UDEV_RULES)
    remove(POLKIT_RULES)
    if os.path.exists(INSTALLED_MARK):
        remove(MOUNT_TOOL)
        remove(POLICY)
        remove(INSTALLED_MARK)
