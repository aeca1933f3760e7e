#!/bin/sh
# Checks the macOS sources against the declarations of Apple's interfaces, for one kind of Mac.
# SPDX-License-Identifier: MIT
#
# usage: check.sh ROOT x86_64|arm64 [SOURCE...]
#
# Reads the sources one by one for arm64, to find missing includes, and all as one for x86_64, which
# takes a tenth of the time.
#
# Compiles for macOS 11 and stops short of the code: what it shows is that the sources, and the facts
# in facts.mm, agree with the interfaces as the project itself declares them, as much of them as it
# uses. The C++ library is this system's, and so are the C
# headers that include/ does not have, with their numbers of errors and signals.
cd "$1" || exit 2
processor=$2
shift 2
compiler=${BRISEL_CLANG:-clang++}
macos=tests/macos
settings='-std=c++20 -fblocks -fno-objc-arc -I src -I .'

# The project's own warnings, without the word that lets them pass.
warnings="$(sed -n '/brisel_options INTERFACE$/,/)/s/[^-]*\(-W[^)]*\).*/\1/p' cmake/BuildOptions.cmake)
    -Werror -Wdeprecated-declarations -Wunguarded-availability -Wundeclared-selector
    -Wstrict-selector-match -Wsuper-class-method-mismatch -Wobjc-missing-super-calls
    -Wobjc-signed-char-bool -Wnullable-to-nonnull-conversion -Wnullability-completeness"

# This system's headers take the processor for its own.
pretend() {
    echo "-D__$(uname -m)__"
    if [ "$(uname -m) $processor" = "x86_64 arm64" ]; then
        echo "-D__builtin_ia32_pause()=__builtin_arm_yield()"
    fi
    # Words of Apple's compilers, which this system's C library uses for its own ends.
    echo "-U__nonnull -U__nullable -U__null_unspecified -D_GNU_SOURCE"
}

# The folders where this system's compiler looks, but for the compiler's own.
system_folders() {
    "$compiler" -x c++ -E -v /dev/null 2>&1 >/dev/null |
        sed -n '/^#include <\.\.\.>/,/^End of/s/^ \//-isystem \//p' | grep -v /clang/
}

# check ARGUMENTS...: all sources in one run of the compiler.
check() {
    "$compiler" -fsyntax-only $options "$@" || broken=1
}

if ! command -v "$compiler" >/dev/null; then
    echo "$compiler is missing, so nothing was checked" >&2
    exit 1
fi
together=
if [ $# -eq 0 ]; then
    [ "$processor" = arm64 ] || together=yes
    # What application and report are built of, and what of the simulator asks for more than the
    # standard library.
    set -- $(find src/platform/macos src/entry/macos helper scripts src/platform/common src/privileged \
        -name '*.mm' -o -name '*.cpp' | sort) $(grep -l '#include <.*\.h>' src/platform/simulated/*.cpp)
    if [ $# -eq 0 ]; then
        echo "there is no macOS source" >&2
        exit 1
    fi
    set -- "$@" $macos/declarations/facts.mm
fi
options="-target $processor-apple-macos11.0 $(pretend) $settings $warnings
    -nostdinc++ -isystem $macos/declarations/include -isystem $macos/frameworks/include
    $(system_folders)"

objective=
plain=
for source in "$@"; do
    case $source in *.mm) objective="$objective $source" ;; *) plain="$plain $source" ;; esac
done
broken=0
if [ -n "$together" ]; then
    # Each program has its own main.
    check -x objective-c++ -Wno-old-style-cast '-DJOINED(a,b)=a##b' '-DNUMBERED(a,b)=JOINED(a,b)' \
        '-Dmain=NUMBERED(start,__COUNTER__)' $(printf -- '-include %s ' "$@") /dev/null
    exit $broken
fi
# A bridging cast looks like one of C's.
[ -z "$objective" ] || check -Wno-old-style-cast $objective
[ -z "$plain" ] || check $plain
exit $broken
