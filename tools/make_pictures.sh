#!/bin/sh
# Runs the workbench to create the screenshots in docs/pictures, with the sample model of a
# building, and the pictures of the sample models in share/models. Needs the Debian package
# pngquant. Run it after a change that is visible in one of them, and check the result. The optional
# argument is a workbench to use instead of the one built by ./run.
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

# compress FILE PICTURE: saves a compressed copy of a snapshot.
compress() {
    pngquant --speed 1 --strip --force --output "$2" 256 "$1"
    echo "${2##*/}: $(wc -c <"$2") bytes"
}

# keep RATIO SNAPSHOT NAME: saves a snapshot. Dialogs have a higher ratio, because they are smaller
# than pages.
keep() {
    compress "$taken/$1/$2.en.png" "$pictures/$3.png"
}

# keepModel NAME FOLDER: saves the pictures of a sample model.
keepModel() {
    for look in "" -dark; do
        compress "$2/1/model$look.en.png" "$root/share/models/$1$look.png"
        compress "$2/2/model$look.en.png" "$root/share/models/$1$look@2x.png"
    done
}

mkdir -p "$pictures"
keep 1 window window
keep 1 window-dark window-dark
keep 1 window-design design-dock
keep 2 design-directions-type3 design-directions
keep 2 window-output-plots output-page
keep 1 sheet-page sheet
keep 1 window-text-chosen text-output
keep 1 window-start start
keepModel building "$taken"
for model in slab hall; do
    "$workbench" new "$taken/$model.zob" --model $model --language english >/dev/null
    for ratio in 1 2; do
        "$workbench" snapshots "$taken/$model.zob" "$taken/$model/$ratio" \
            --language english --pixel-ratio $ratio >/dev/null
    done
    keepModel $model "$taken/$model"
done
