# The user account of the desktop: a temporary one if possible.
# SPDX-License-Identifier: MIT
import os
import pwd
import secrets
import shutil
import subprocess
from dataclasses import dataclass

from .programs import run

NAME = "brisel-stage"
COMMENT = "Plays a person in tests of Brisel"


@dataclass
class Account:
    """The owner of the desktop session. `password` is None for an existing account."""

    name: str
    uid: int
    gid: int
    home: str
    password: str | None = None

    def command(self, words):
        """Prefixes `words` so that they run as this user and end with their parent process."""
        prefix = ["setpriv", "--pdeathsig", "KILL"]
        if os.geteuid() != self.uid:
            prefix += ["--reuid", str(self.uid), "--regid", str(self.gid), "--init-groups"]
        return [*prefix, *words]

    def owns(self, path):
        os.chown(path, self.uid, self.gid)
        return path


def own_account(folder):
    """The current user, with another home folder."""
    home = os.path.join(folder, "home")
    os.mkdir(home, 0o700)
    entry = pwd.getpwuid(os.geteuid())
    return Account(entry.pw_name, entry.pw_uid, entry.pw_gid, home)


def make_account(folder, cleanup):
    """Creates an ordinary user with a password; `cleanup` removes it."""
    remove_account()
    home = os.path.join(folder, "home")
    os.mkdir(home, 0o700)
    cleanup.callback(remove_account)
    run("useradd", "--no-create-home", "--home-dir", home, "--shell", "/bin/sh",
        "--user-group", "--comment", COMMENT, NAME)
    password = secrets.token_hex(8)
    subprocess.run(["chpasswd"], input=f"{NAME}:{password}\n", text=True, check=True)
    entry = pwd.getpwnam(NAME)
    account = Account(NAME, entry.pw_uid, entry.pw_gid, home, password)
    account.owns(home)
    return account


def remove_account():
    """Removes the account, including one left by an interrupted run."""
    try:
        entry = pwd.getpwnam(NAME)
    except KeyError:
        return
    if entry.pw_gecos != COMMENT:
        raise RuntimeError(f"there is a user {NAME} who is not the stage's")
    run("userdel", "--force", NAME)
    for folder in (f"/media/{NAME}", f"/run/media/{NAME}"):
        shutil.rmtree(folder, ignore_errors=True)
