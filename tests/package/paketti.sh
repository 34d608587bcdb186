#!/usr/bin/env bash
# The .deb of the game installed into a scratch root: the desktop's files where it expects them,
# the installed programs finding their own program folder, and the runner playing the year's demo.
set -euo pipefail
build=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cpack -G DEB -B "$work/out" --config "$build/CPackConfig.cmake" > "$work/cpack.log" 2>&1 || {
  cat "$work/cpack.log"
  exit 1
}
deb=$(ls "$work"/out/*.deb)
depends=$(dpkg-deb -f "$deb" Depends)
for pkg in libqt6widgets6 libsdl2-mixer qt6-qpa-plugins; do
  [[ $depends == *"$pkg"* ]] || { echo "the package does not depend on $pkg: $depends"; exit 1; }
done
dpkg -x "$deb" "$work/root"
usr=$work/root/usr
for f in bin/tanhua bin/tanhua-sim bin/tanhua-asetukset \
         share/applications/tanhua.desktop share/applications/tanhua-asetukset.desktop \
         share/icons/hicolor/48x48/apps/tanhua.png share/icons/hicolor/128x128/apps/tanhua.png \
         share/icons/hicolor/256x256/apps/tanhua.png share/icons/hicolor/scalable/apps/tanhua.svg \
         share/metainfo/fi.tanhua.Tanhua.metainfo.xml share/tanhua/Data/Asetukset.dat share/tanhua/Kuvat/Kesä.jpg; do
  [[ -e $usr/$f ]] || { echo "missing from the package: $f"; exit 1; }
done
if command -v desktop-file-validate > /dev/null; then
  desktop-file-validate "$usr"/share/applications/*.desktop
fi
if command -v appstreamcli > /dev/null; then
  appstreamcli validate --no-net "$usr/share/metainfo/fi.tanhua.Tanhua.metainfo.xml"
fi

# The installed programs read the installed program folder: a setting changed there is what a fresh
# data folder is seeded with.
printf 'True\r\nTrue\r\n50\r\nTrue\r\nFalse\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n' > "$usr/share/tanhua/Data/Asetukset.dat"
"$usr/bin/tanhua-asetukset" --data-dir "$work/data1" --list | grep -qx 'Resoluutio800=True' || {
  echo "the installed settings tool did not read the installed program folder"
  exit 1
}
"$usr/bin/tanhua-sim" --data-dir "$work/data2" "$source/scripts/esittely.tanhua" > "$work/demo.out"
grep -q '^RAPORTTI|' "$work/demo.out" || { echo "the installed runner printed no month report"; exit 1; }
echo "package ok: $(basename "$deb")"
