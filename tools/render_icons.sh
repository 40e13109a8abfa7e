#!/usr/bin/env bash
# Draws the icons of the themes and the pictures of the simple toast from their vector sources, at 1x and @2x.
#
# themes/icons/icons.list names each picture, its source NAME.svg beside it and the palette colour that the
# source's currentColor stands for. The pictures go to themes/icons/<theme>/, where the style sheets find them
# as url(:/themes/icons/<theme>/NAME.png); icons.qrc lists them for the build. The pictures of the simple toast
# stand beside their sources in resources/simpletoast. Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "$0")/../themes"

scratch=$(mktemp)
trap 'rm -f "$scratch"' EXIT

palette_color() { # THEME COLOUR
    python3 -c 'import json, sys; print(json.load(open("palettes.json"))[sys.argv[1]][sys.argv[2]])' "$@"
}

render() { # SOURCE COLOUR TARGET
    printf 'svg { color: %s }\n' "$2" >"$scratch"
    rsvg-convert --stylesheet "$scratch" -o "$3.png" "$1"
    rsvg-convert --stylesheet "$scratch" --zoom 2 -o "$3@2x.png" "$1"
}

list_for_the_build() {
    echo '<!DOCTYPE RCC>'
    echo '<!-- Written by tools/render_icons.sh. -->'
    echo '<RCC version="1.0">'
    echo '  <qresource prefix="/themes/icons">'
    find dark light -name '*.png' | LC_ALL=C sort | sed 's|.*|    <file>&</file>|'
    echo '  </qresource>'
    echo '</RCC>'
}

for theme in light dark; do
    rm -rf "icons/$theme"
    mkdir -p "icons/$theme"
    while read -r name source color; do
        render "icons/$source.svg" "$(palette_color "$theme" "$color")" "icons/$theme/$name"
    done < <(grep -v '^#' icons/icons.list)
done
(cd icons && list_for_the_build >icons.qrc)

for source in ../resources/simpletoast/*.svg; do
    render "$source" '#FFFFFF' "${source%.svg}"
done
