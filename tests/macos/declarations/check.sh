#!/bin/sh
# Checks the macOS sources against declarations of Apple's interfaces, for a Mac's processor.
# SPDX-License-Identifier: MIT
#
# usage: check.sh ROOT x86_64|arm64 [SOURCE...]
#
# Nothing is built or linked. The compiler compiles for macOS 11; the C++ library is this system's,
# and so are those headers of C that include/ does not have. Their numbers of errors and signals are
# this system's, then: what the check proves is that the sources agree with the declared interfaces.
root=$1
processor=$2
case $processor in
    x86_64 | arm64) ;;
    *) echo "usage: check.sh ROOT x86_64|arm64 [SOURCE...]" >&2; exit 2 ;;
esac
cd "$root" || exit 2
shift 2

compiler=${BRISEL_MACOS_CHECKER:-clang++}
if ! command -v "$compiler" >/dev/null; then
    echo "$compiler is missing, so nothing was checked" >&2
    exit 1
fi
here=tests/macos/declarations

# Where this system's compiler finds the C++ and the C library, without the folders of its own.
system_folders=$("$compiler" -E -x c++ -v /dev/null 2>&1 >/dev/null |
    sed -n '/^#include <\.\.\.>/,/^End/ s/^ //p' | grep -v /clang/)
if [ -z "$system_folders" ]; then
    echo "the folders of this system's headers were not found" >&2
    exit 1
fi

# The processor: the headers of this system's C library know but this system's own.
set_options() {
    set -- -target "$processor-apple-macos11.0" "-D__$(uname -m)__"
    if [ "$processor" = arm64 ]; then set -- "$@" "-D__builtin_ia32_pause()=__builtin_arm_yield()"; fi
    # The C library has words of its own by these names.
    set -- "$@" -D_GNU_SOURCE -U__nonnull -U__nullable -U__null_unspecified
    set -- "$@" -nostdinc++ -isystem $here/include -isystem tests/macos/frameworks/include
    for folder in $system_folders; do set -- "$@" -isystem "$folder"; done
    options=$(printf '%s\n' "$@")
}
set_options

language="-std=c++20 -fblocks -fno-objc-arc -I src -I ."
# The project's warnings (cmake/BuildOptions.cmake), and those of Objective-C.
warnings="-Werror -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wnull-dereference"
objective_c="-Wdeprecated-declarations -Wunguarded-availability -Wstrict-selector-match
    -Wundeclared-selector -Wselector -Wnullable-to-nonnull-conversion -Wnullability-completeness
    -Wobjc-missing-super-calls -Wobjc-signed-char-bool -Wobjc-literal-conversion
    -Wsuper-class-method-mismatch"

check() {
    IFS='
'
    # shellcheck disable=SC2086 # Options stand on lines of their own.
    set -- $options "$@"
    IFS=' 	
'
    # shellcheck disable=SC2086 # So do the words of these.
    "$compiler" -fsyntax-only $language $warnings $objective_c "$@"
}

if [ $# -eq 0 ]; then
    set -- $(find src/platform/macos src/entry/macos helper \
        \( -name '*.mm' -o -name '*.cpp' \) 2>/dev/null | sort)
fi
if [ $# -eq 0 ]; then
    echo "there is no macOS source" >&2
    exit 1
fi

broken=0
for source in "$@"; do
    check "$source" || broken=1
done
exit $broken
