#!/usr/bin/env bash
# check_package.sh: makes the Debian package of build/release, which must be built already, and checks it without
# installing it: files, dependencies, menu entry, descriptions, Debian's own checks. Prints what is wrong, or the
# package's path and size.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
fail() {
  echo "check_package: $*" >&2
  exit 1
}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

rm -f build/release/kvcenter_*.deb
(cd build/release && cpack) >"$work/log" 2>&1 || { cat "$work/log" >&2; fail "not packed"; }
package=$(echo build/release/kvcenter_*.deb)
[ -f "$package" ] || { cat "$work/log" >&2; fail "no package, or several"; }

cat >"$work/wanted" <<'LIST'
usr/bin/kv_simulator
usr/bin/kvcenter
usr/lib/udev/rules.d/70-kvcenter-serial.rules
usr/libexec/kvcenter/kvcenter
usr/share/applications/kvcenter.desktop
usr/share/doc/kvcenter/changelog.gz
usr/share/doc/kvcenter/copyright
usr/share/doc/kvcenter/copyright.fonts-hack
usr/share/doc/kvcenter/copyright.fonts-noto-mono
usr/share/doc/kvcenter/copyright.qt6-translations-l10n
usr/share/doc/kvcenter/simulator.md
usr/share/icons/hicolor/128x128/apps/kvcenter.png
usr/share/icons/hicolor/16x16/apps/kvcenter.png
usr/share/icons/hicolor/24x24/apps/kvcenter.png
usr/share/icons/hicolor/256x256/apps/kvcenter.png
usr/share/icons/hicolor/32x32/apps/kvcenter.png
usr/share/icons/hicolor/48x48/apps/kvcenter.png
usr/share/icons/hicolor/512x512/apps/kvcenter.png
usr/share/icons/hicolor/64x64/apps/kvcenter.png
usr/share/icons/hicolor/scalable/apps/kvcenter.svg
usr/share/kvcenter/objModel/cube.mtl
usr/share/kvcenter/objModel/cube.obj
usr/share/kvcenter/objModel/jet.mtl
usr/share/kvcenter/objModel/jet.obj
usr/share/kvcenter/objModel/plane.mtl
usr/share/kvcenter/objModel/plane.obj
usr/share/kvcenter/objModel/spaceship.mtl
usr/share/kvcenter/objModel/spaceship.obj
usr/share/man/man1/kv_simulator.1.gz
usr/share/man/man1/kvcenter.1.gz
usr/share/metainfo/kvcenter.metainfo.xml
LIST
dpkg-deb --extract "$package" "$work/tree"
(cd "$work/tree" && find . ! -type d -printf '%P\n' | LC_ALL=C sort) >"$work/found"
diff "$work/wanted" "$work/found" >&2 || fail "files differ from the expected list (<), see above"
for size in 16 24 32 48 64 128 256 512; do
  file "$work/tree/usr/share/icons/hicolor/${size}x$size/apps/kvcenter.png" | grep -q " $size x $size," ||
    fail "the icon of $size pixels has the wrong size"
done

depends=$(dpkg-deb --field "$package" Depends)
for name in libqt6quick3d6 libqt6serialport6 qml6-module-quick3d; do # linked by two targets; imported
  [[ ", $depends" == *", $name"* ]] || fail "does not depend on $name: $depends"
done
desktop-file-validate "$work/tree/usr/share/applications/kvcenter.desktop"
appstreamcli validate --no-net --override=cid-desktopapp-is-not-rdns=info \
  "$work/tree/usr/share/metainfo/kvcenter.metainfo.xml" >"$work/log" || { cat "$work/log" >&2; fail "bad descriptions"; }
# The toolkit's translated texts contain messages of a library, which lintian takes for the library itself.
lintian --fail-on error,warning --suppress-tags embedded-library "$package" >"$work/log" 2>&1 ||
  { cat "$work/log" >&2; fail "lintian found problems"; }
echo "check_package: $package, $(stat -c %s "$package") bytes, is in order"
