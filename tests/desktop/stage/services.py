# What the machine itself must provide, and what it is told about the stage for a while.
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
# What somebody who sits at the machine may do without a password, or has in hand as its owner.
# Without a login manager there are no seats to tell apart.
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
# Says that the tool and the policy are the stage's, and no package's.
INSTALLED_MARK = "/run/brisel-stage.installed"
TOOL_ACTION = "org.brisel.run-mount-tool"
AUTHORITY = ("org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
             "org.freedesktop.PolicyKit1.Authority")


def start_disk_services(cleanup):
    """The system bus, udev and UDisks2; they are ended again only if they did not run before."""
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
    """Whether UDisks2 was started for tests, so that they may also end it."""
    return bool(run(DISK_SERVICES, "udisks-process"))


def write_for_a_while(path, text, cleanup):
    """A file of the machine's that `cleanup` removes."""
    cleanup.callback(remove, path)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(path, 0o644)


def remove(path):
    if os.path.exists(path):
        os.remove(path)


def announce_sticks(folder, cleanup):
    """Lets udev take the images in `folder` for sticks."""
    cleanup.callback(run, "udevadm", "control", "--reload")
    write_for_a_while(UDEV_RULES, UDEV_TEXT.format(folder=folder), cleanup)
    run("udevadm", "control", "--reload")


def start_time(pid):
    """When a process began, in the kernel's clock ticks: polkit tells processes apart by it."""
    with open(f"/proc/{pid}/stat", encoding="ascii", errors="replace") as file:
        return int(file.read().rpartition(")")[2].split()[19])


def subject(pid):
    """A process as polkit's calls want it."""
    return ("unix-process", {"pid": GLib.Variant("u", pid),
                             "start-time": GLib.Variant("t", start_time(pid))})


def is_allowed(connection, pid, action):
    """Whether polkit lets the process do it without asking anybody."""
    name, path, interface = AUTHORITY
    answer = bus.call(connection, name, path, f"{interface}.CheckAuthorization",
                      "((sa{sv})sa{ss}us)", subject(pid), action, {}, 0, "")
    return answer[0][0]


def knows_action(connection, action):
    name, path, interface = AUTHORITY
    actions = bus.call(connection, name, path, f"{interface}.EnumerateActions", "(s)", "")[0]
    return any(one[0] == action for one in actions)


def grant_rights(pid, cleanup):
    """Makes the person of process `pid` one who may use sticks, and an administrator."""
    text = POLKIT_TEXT.format(name=NAME, allowed=list(ALLOWED))
    write_for_a_while(POLKIT_RULES, text, cleanup)
    connection = bus.system_bus()
    wait_for(lambda: all(is_allowed(connection, pid, action) for action in ALLOWED),
             "polkit has read the stage's rules")


def obstacle_to_mount_tool(built):
    """Why the mount tool cannot be put in its place for a while; None if it can."""
    for source, place in ((built, MOUNT_TOOL), (POLICY_SOURCE, POLICY)):
        if not os.path.exists(source):
            return f"there is no {source}"
        if os.path.exists(place):
            return f"{place} is there already"
    return None


def install_mount_tool(built, cleanup):
    """Puts the mount tool and its policy where a package would, for a while."""
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
    """What a run has left that was killed; its folders began with `folders`."""
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
