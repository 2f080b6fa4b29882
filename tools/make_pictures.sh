#!/bin/sh
# Runs the workbench to create the screenshots in docs/pictures, with the sample model of a
# building. Needs the Debian package pngquant. Run it after a change that is visible in one of them,
# and check the result. The optional argument is a workbench to use instead of the one built by
# ./run.
set -eu

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
workbench=${1:-$root/run}
pictures=$root/docs/pictures

command -v pngquant >/dev/null || {
    echo "make_pictures: install the Debian package pngquant" >&2
    exit 1
}

taken=$(mktemp -d)
trap 'rm -rf "$taken"' EXIT
"$workbench" new "$taken/building.zob" --model building --language english >/dev/null
for ratio in 1 2; do
    "$workbench" snapshots "$taken/building.zob" "$taken/$ratio" \
        --language english --pixel-ratio $ratio >/dev/null
done

# keep RATIO SNAPSHOT NAME: saves a compressed copy of a snapshot. Dialogs have a higher ratio,
# because they are smaller than pages.
keep() {
    pngquant --speed 1 --strip --force --output "$pictures/$3.png" 256 "$taken/$1/$2.en.png"
    echo "$3.png: $(wc -c <"$pictures/$3.png") bytes"
}

mkdir -p "$pictures"
keep 1 window window
keep 1 window-dark window-dark
keep 2 design-editor-groups design-page
keep 2 design-directions-type3 design-directions
keep 2 window-output-plots output-page
keep 1 sheet-page sheet
keep 1 window-text-chosen text-output
