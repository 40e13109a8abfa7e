#!/usr/bin/env bash
# Draws the icons of the themes, of the toast and of the simple toast from their vector sources.
#
# themes/icons/icons.list names each picture, its source NAME.svg beside it and the palette colour that the
# source's currentColor stands for. The pictures go to themes/icons/<theme>/, at 1x and @2x, where the style
# sheets find them as url(:/themes/icons/<theme>/NAME.png); icons.qrc lists them for the build.
#
# The pictures of the simple toast stand beside their sources in resources/simpletoast. They have twice the size
# that the toast scales them to, so they are sharp at both resolutions.
#
# The icons of the toast stand beside their sources in src/common/WyWidgets/wycontrol/icons. The toast takes their
# shape only. They have 8 pixels for each unit of the drawing, which is a point at their usual size: scaled down,
# edges on whole units stay sharp.
#
# Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "$0")/../themes"

scratch=$(mktemp)
trap 'rm -f "$scratch"' EXIT

palette_color() { # THEME COLOUR
    python3 -c 'import json, sys; print(json.load(open("palettes.json"))[sys.argv[1]][sys.argv[2]])' "$@"
}

render() { # SOURCE COLOUR ZOOM TARGET
    printf 'svg { color: %s }\n' "$2" >"$scratch"
    rsvg-convert --stylesheet "$scratch" --zoom "$3" -o "$4" "$1"
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
        value=$(palette_color "$theme" "$color")
        render "icons/$source.svg" "$value" 1 "icons/$theme/$name.png"
        render "icons/$source.svg" "$value" 2 "icons/$theme/$name@2x.png"
    done < <(grep -v '^#' icons/icons.list)
done
(cd icons && list_for_the_build >icons.qrc)

for source in ../resources/simpletoast/*.svg; do
    render "$source" '#FFFFFF' 2 "${source%.svg}.png"
done

for source in ../src/common/WyWidgets/wycontrol/icons/*.svg; do
    render "$source" '#000000' 8 "${source%.svg}.png"
done
