#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian package of a build, unpacks it into a folder, and runs the program from there.
# Descriptions are checked by the tools that are installed.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work" -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip \
  > "$work/log" 2>&1 || { cat "$work/log"; exit 1; }
package=$(echo "$work"/corvala_*.deb)
root=$work/root
dpkg-deb -x "$package" "$root"

depends=$(dpkg-deb -f "$package" Depends)
for library in libvtk9 libqt5widgets5 libqcustomplot libgsl libroaring; do
  [[ $depends == *$library* ]] || fail "the package does not depend on $library: $depends"
done
for file in bin/corvala libexec/corvala/corvala-read; do
  path=$(readelf -d "$root/usr/$file" | sed -n 's/.*R.*PATH.*\[\(.*\)\]/\1/p')
  [[ -z ${path//\$ORIGIN\/..\/lib\/corvala/} ]] || fail "$file looks for libraries in $path"
done
ldd "$root/usr/bin/corvala" | grep "$root/usr/bin/../lib/corvala/libcvzonestyle.so" > /dev/null \
  || fail "the libraries of the package are not found"

cd "$work"
export HOME=$work XDG_CONFIG_HOME=$work
unset CORVALA_READ
program=$root/usr/bin/corvala
$program --version
$program --demo --render demo.png
$program "$root/usr/share/corvala/samples/cgns_hexa"/*.cgns --render file.png
[ -s demo.png ] && [ -s file.png ] || fail "no picture"

share=$root/usr/share
[ -s "$share/corvala/help/index.html" ] || fail "the help is missing"
check() { if command -v "$1" > /dev/null; then "$@"; else echo "$1 is not installed"; fi }
check desktop-file-validate "$share/applications/corvala.desktop"
check appstreamcli validate --no-net "$share"/metainfo/*.xml
check update-mime-database "$share/mime"
[ ! -d "$share/mime/application" ] || [ -s "$share/mime/application/x-corvala-document.xml" ] \
  || fail "there is no type of documents"
warnings=$(check man --warnings -l "$share/man/man1/corvala.1" 2>&1 > /dev/null)
[ -z "$warnings" ] || fail "the manual page: $warnings"
icon=$(sed -n 's/^Icon=//p' "$share/applications/corvala.desktop")
[ -s "$share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "the icon is missing"
