#!/bin/sh
# Renders the drawings of lib/plib/resources to the committed pictures beside them, and to the
# figures of the help. Needs the Debian packages librsvg2-bin and fonts-dejavu-core. Run it after
# changing a drawing.
set -eu

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
resources=$root/lib/plib/resources
help=$root/share/help/merdan

need() {
    echo "render_pictures: $1 is missing; install the Debian package $2" >&2
    exit 1
}

command -v rsvg-convert >/dev/null || need rsvg-convert librsvg2-bin
command -v fc-match >/dev/null || need fc-match fontconfig
case $(fc-match --format='%{family}' 'DejaVu Sans') in
    'DejaVu Sans'*) ;;
    *) need 'the font DejaVu Sans' fonts-dejavu-core ;;
esac

# render DRAWING PICTURE LANGUAGE WIDTH HEIGHT; zxx, "no language", omits the text.
render() {
    rsvg-convert --background-color=white --accept-language="$3" \
        --page-width="$4" --page-height="$5" \
        --output="$resources/pictures/$2.png" "$resources/drawings/$1.svg"
    echo "$2.png: $4 x $5"
}

# render_forms DRAWING WIDTH HEIGHT: renders a picture without text, and the pictures _0 (German)
# and _1 (English), which are one row of pixels higher.
render_forms() {
    render "$1" "$1" zxx "$2" "$3"
    render "$1" "$1_0" de "$2" $(($3 + 1))
    render "$1" "$1_1" en "$2" $(($3 + 1))
}

render_forms neq_merpara_rich 193 111
render_forms betondeckung 240 111
render neq_designline_zrt_bew_mod_allg neq_designline_zrt_bew_mod_allg zxx 299 104

# render_help DRAWING FIGURE LANGUAGE [STYLE]: enlarges the drawing so that its text is easy to
# read.
render_help() {
    printf '%s' "${4:-}" >"$style"
    rsvg-convert --background-color=white --accept-language="$3" --zoom=1.75 --stylesheet="$style" \
        --output="$help/$2.png" "$resources/drawings/$1.svg"
    echo "help: $2.png"
}

style=$(mktemp)
trap 'rm -f "$style"' EXIT
for language in de en; do
    render_help neq_merpara_rich "$language/directions" "$language"
done
render_help help_layers two_layers zxx '.third { display: none }'
render_help help_layers three_layers zxx
render_help help_cover cover zxx
render_help help_circular circular zxx

icons=$root/packaging/icons
for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert -w $size -h $size "$icons/plib_workbench.svg" -o "$icons/plib_workbench_$size.png"
done
