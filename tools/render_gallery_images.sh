#!/usr/bin/env bash
# Draws the demo pictures of the gallery: the icon of the image button in both its states, from its vector source,
# and the frames of the busy images, two dots that go round each other. All have twice the size that they are shown
# at, so they are sharp at both resolutions.
#
# Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "$0")/../gallery/images"

readonly FRAMES=12
# Stand out on the light and on the dark theme.
readonly BLUE='#3D8BFD' GREEN='#07BE8B' GREY='#8B949E'

scratch=$(mktemp)
trap 'rm -f "$scratch"' EXIT

render_icon() { # COLOUR TARGET
    printf 'svg { color: %s }\n' "$1" >"$scratch"
    rsvg-convert --stylesheet "$scratch" --zoom 2 -o "$2" download.svg
}

frame() { # NUMBER
    awk -v turn="$(($1 - 1))" -v frames="$FRAMES" -v blue="$BLUE" -v green="$GREEN" '
        function dot(angle, colour) {
            # The dot in front is the larger one.
            printf "<circle cx=\"%.3f\" cy=\"16\" r=\"%.3f\" fill=\"%s\"/>", 16 + 8 * cos(angle), 5 + 2 * sin(angle), colour
        }
        BEGIN {
            angle = 2 * atan2(0, -1) * turn / frames
            print "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"32\" height=\"32\" viewBox=\"0 0 32 32\">"
            if (sin(angle) < 0) { dot(angle, blue); dot(angle + atan2(0, -1), green) }
            else { dot(angle + atan2(0, -1), green); dot(angle, blue) }
            print "</svg>"
        }'
}

render_icon "$BLUE" download.png
render_icon "$GREY" download-disabled.png
for number in $(seq "$FRAMES"); do
    frame "$number" | rsvg-convert --zoom 2 -o "$(printf 'busy/loading_%02d.png' "$number")"
done
