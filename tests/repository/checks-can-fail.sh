#!/bin/sh
# Checks that each repository check finds its faults, and accepts a good tree.
# SPDX-License-Identifier: MIT
#
# usage: checks-can-fail.sh FOLDER, which is emptied
folder=$1
checks=$(dirname "$0")
failures=0

# tree FILE TEXT: creates a tree with this file only; scripts can be executed.
tree() {
    rm -rf "$folder"
    mkdir -p "$folder/$(dirname "$1")"
    printf 'BasedOnStyle: Google\n' >"$folder/.clang-format"
    printf "$2" >"$folder/$1"
    case $1 in scripts/* | .ci/*) chmod +x "$folder/$1" ;; esac
}

# lines TEXT NUMBER: repeats the line.
lines() {
    yes "$1" | head -n "$2" | tr '\n' '@' | sed 's/@/\\n/g'
}

passes() {
    sh "$checks/$1.sh" "$folder" >/dev/null 2>&1
    # 77: the check is skipped on this machine.
    case $? in 0 | 77) return ;; esac
    echo "$1 complains about a good tree: $2"
    failures=1
}

complains() {
    sh "$checks/$1.sh" "$folder" >/dev/null 2>&1 || return
    echo "$1 does not complain: $2"
    failures=1
}

# tree_of FILE TEXT VERDICT CHECK WHAT
tree_of() {
    tree "$1" "$2"
    "$3" "$4" "$5"
}

# includes FROM TO VERDICT
includes() {
    tree_of "$1" "#include \"$2\"\n" "$3" arrows "$1 includes $2"
}

includes src/app/A.cpp mounting/B.h passes
includes src/mounting/A.cpp privileged/B.h passes
includes src/volumes/A.cpp platform/B.h passes
includes src/platform/simulated/A.cpp platform/simulated/B.h passes
includes src/platform/headless/A.cpp platform/common/B.h passes
includes src/platform/desktop/A.cpp platform/headless/B.h passes
includes src/platform/terminal/A.cpp platform/headless/B.h passes
includes src/entry/desktop/main.cpp platform/desktop/B.h passes
includes simulator/A.cpp platform/simulated/B.h passes
includes tests/core/A.cpp platform/simulated/B.h passes
includes tests/tools/A.cpp tools/B.h passes

includes src/volumes/A.cpp mounting/B.h complains
includes src/volumes/A.cpp app/B.h complains
includes src/mounting/A.cpp app/B.h complains
includes src/privileged/A.cpp volumes/B.h complains
includes src/platform/A.h volumes/B.h complains
includes src/platform/A.h platform/common/B.h complains
includes src/platform/simulated/A.cpp volumes/B.h complains
includes src/platform/headless/A.cpp platform/desktop/B.h complains
includes src/platform/headless/A.cpp platform/simulated/B.h complains
includes src/platform/common/A.cpp platform/headless/B.h complains
includes src/app/A.cpp platform/simulated/B.h complains
includes src/app/A.cpp simulator/B.h complains
includes src/app/A.cpp B.h complains
includes src/entry/desktop/main.cpp simulator/B.h complains
includes simulator/A.cpp tests/B.h complains
includes tools/A.cpp app/B.h complains
includes tools/A.cpp platform/headless/B.h complains

tree_of src/app/A.cpp '#ifdef __linux__\n#endif\n' complains arrows 'an operating system in the core'
tree_of src/platform/headless/A.cpp '#ifdef __linux__\n#endif\n' \
    passes arrows 'an operating system in its platform'

good='// A good file.\n// SPDX-License-Identifier: MIT\n#pragma once\n'
tree_of src/app/A.h "$good" passes files 'a good header'
passes format 'a good header'
tree_of src/app/A.h '#pragma once\n// SPDX-License-Identifier: MIT\n' complains files 'no sentence'
tree_of src/app/A.h '// No licence.\n#pragma once\n' complains files 'no licence'
tree_of src/app/A.h '// No guard.\n// SPDX-License-Identifier: MIT\n' complains files 'no guard'
tree_of src/app/A.h "$good$(lines '//' 257)" passes files 'a file of 260 lines'
tree_of src/app/A.h "$good$(lines '//' 258)" complains files 'a file of 261 lines'

licence='# SPDX-License-Identifier: MIT\n'
tree_of scripts/run "#!/bin/sh\n# Runs it all.\n$licence" passes files 'a good script'
tree_of scripts/run "#!/bin/sh\n# Runs it all: run FOLDER\n$licence" \
    passes files 'a script that says how it is called'
tree_of tests/run.py "# Runs it all.\n$licence" passes files 'a good module'
tree_of scripts/run "# Runs it all.\n$licence" complains files 'nothing to execute a script by'
tree_of scripts/run "#!/bin/sh\n$licence" complains files 'no sentence on a script'
tree_of .ci/run "#!/bin/sh\n# Runs it all.\nset -eu\n" complains files 'no licence of a script'
tree_of tests/run.sh "#!/bin/sh\n# Runs it all: but\n$licence# not today.\n" \
    complains files 'half a sentence on a script'
tree_of tests/run.py '# Runs it all.\nimport os\n' complains files 'no licence of a module'
tree_of benchmarks/run.py "# Runs it all.\n$licence$(lines '#' 259)" complains files 'a long module'

tree_of src/app/A.cpp 'int  a ;\n' complains format 'bad format'

rm -rf "$folder"
exit $failures
