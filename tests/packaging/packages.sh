#!/bin/sh
# Packages the release; checks the packages' files against lists, and with Debian's lintian.
# SPDX-License-Identifier: MIT
#
# usage: packages.sh RELEASE-TREE FOLDER
#
# The lists PACKAGE.contents hold mode and path of everything but folders. COLOUR-BAR stands for the
# status images, whose names icon-names.sh checks.
release=$1
folder=$2
lists=$(dirname "$0")
failures=0

if [ ! -e "$release/CPackConfig.cmake" ]; then
    echo "Skipped: there is no release to package in $release; \`make\` builds one."
    exit 77
fi
for tool in cpack dpkg-deb dpkg-shlibdeps lintian; do
    command -v $tool >/dev/null && continue
    echo "Skipped: $tool is missing."
    exit 77
done

complain() {
    echo "$1"
    failures=1
}

rm -rf "$folder"
mkdir -p "$folder"
cpack --config "$release/CPackConfig.cmake" -B "$folder" >"$folder/log" 2>&1 || {
    cat "$folder/log"
    exit 1
}

version=$(sed -n 's/^set(CPACK_PACKAGE_VERSION "\(.*\)")$/\1/p' "$release/CPackConfig.cmake")
for package in brisel brisel-mount-tool; do
    file=$folder/${package}_${version}_$(dpkg --print-architecture).deb
    [ -f "$file" ] || { complain "There is no $file." && continue; }
    dpkg-deb -c "$file" >"$folder/listing" || complain "$package cannot be listed."
    grep -qv ' root/root ' "$folder/listing" && complain "$package has files that are not root's."
    grep '^d' "$folder/listing" | grep -v '^drwxr-xr-x ' && complain "$package has odd folders."
    awk '!/^d/ { print $1, $6 }' "$folder/listing" |
        sed 's/-[a-z]*-\(dark\|light\)[.]svg$/-COLOUR-BAR.svg/' |
        LC_ALL=C sort -k 2 -u >"$folder/contents"
    diff "$lists/$package.contents" "$folder/contents" ||
        complain "$package does not hold what it should (< should, > does)."
    [ "$(dpkg-deb -f "$file" Version)" = "$version" ] || complain "$package has another version."
done

[ "$(dpkg-deb -c "$folder"/brisel_*.deb | grep -c 'brisel-status-')" = 20 ] ||
    complain "brisel does not hold 20 status images."
dpkg-deb -f "$folder"/brisel_*.deb Depends | grep -q 'brisel-mount-tool\|pkexec' &&
    complain "brisel drags code in that runs as root."
# The documents install it with this command.
apt-get install --simulate "$folder"/brisel_*.deb >"$folder/simulated" 2>&1 || {
    cat "$folder/simulated"
    complain "brisel would not be installed."
}
lintian --allow-root --fail-on error,warning "$folder"/*.deb ||
    complain "lintian finds fault with the packages."
exit $failures
