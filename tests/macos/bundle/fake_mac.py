# Stand-ins for the tools of a Mac, which log their calls and leave a result.
# SPDX-License-Identifier: MIT
import os
import pathlib
import stat
import subprocess

COMMON = """\
#!/bin/sh
echo "{name} $*" >>"{log}"
"""
# What each does after logging. The compiler creates its output and an empty list of dependencies.
TOOLS = {
    "clang++": """\
while [ $# -gt 0 ]; do
    case $1 in
    -o) out=$2 ;;
    -MF) dependencies=$2 ;;
    -MT) object=$2 ;;
    esac
    shift
done
[ -z "$dependencies" ] || echo "$object:" >"$dependencies"
echo made >"$out"
chmod +x "$out"
""",
    "ar": 'for word; do case $word in *.a) echo made >"$word" ;; esac; done\n',
    "ranlib": "",
    "install_name_tool": "",
    "sw_vers": "echo 11.6\n",
    "xcode-select": "",
    "uname": "echo Darwin\n",
    # The last argument but one is the nib to create.
    "ibtool": """\
while [ $# -gt 2 ]; do shift; done
echo nib >"$1"
""",
    "xcrun": """\
case "$*" in
"--find $MISSING") exit 1 ;;
"--find "*) echo "$(dirname "$0")/$2" ;;
"notarytool submit "*) echo "  status: ${VERDICT:-Accepted}" ;;
esac
""",
    "codesign": "",
    "spctl": "",
    "security": "echo '  1) 0123 \"Developer ID Application: Somebody (TEAM)\"'\n",
    "ditto": """\
case "$1" in
-c) shift 4; echo zip >"$1" ;;
*) cp -R "$1" "$2" ;;
esac
""",
    # The image contains the listing of its folder.
    "hdiutil": """\
while [ $# -gt 1 ]; do
    [ "$1" = -srcfolder ] && folder=$2
    shift
done
ls "$folder" >"$1"
""",
}


class FakeMac:
    def __init__(self, folder, tools=TOOLS):
        self.folder = pathlib.Path(folder)
        self.log = self.folder / "calls"
        self.tools = self.folder / "tools"
        self.tools.mkdir(parents=True)
        for name, script in tools.items():
            file = self.tools / name
            file.write_text(COMMON.format(name=name, log=self.log) + script)
            file.chmod(file.stat().st_mode | stat.S_IXUSR)

    def run(self, *command, **environment):
        """Runs a command with the stand-ins first in PATH; clears the log of calls."""
        self.log.write_text("")
        path = f"{self.tools}:{os.environ['PATH']}"
        return subprocess.run([str(word) for word in command], text=True, timeout=100,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              env={**os.environ, "PATH": path, **environment})

    def calls(self, tool):
        """The arguments of each call of `tool`, in order."""
        start = tool + " "
        return [line[len(start):] for line in self.log.read_text().splitlines()
                if line.startswith(start)]
