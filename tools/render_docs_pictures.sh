#!/usr/bin/env bash
# Takes the pictures of docs: what each snippet of a class page makes, the guide's application, and the gallery's
# pages, three of them in the dark theme too.
#
#   tools/render_docs_pictures.sh [BUILD]     BUILD is build/dev unless given, and has the targets snippets and gallery
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/dev}
desktop=(tests/support/with-display desktop --)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir -p docs/pictures/classes
"${desktop[@]}" "$build/docs/snippets/snippets" docs/pictures/classes
rm -f docs/pictures/classes/*-*.png # pages show the first snippet of a class
mv docs/pictures/classes/notes.png docs/pictures/
"${desktop[@]}" "$build/gallery/gallery" --grab "$scratch/light"
for page in windows busy "tips and bubbles"; do
    "${desktop[@]}" "$build/gallery/gallery" --theme dark --page "$page" --grab "$scratch/dark"
done
for theme in light dark; do
    for picture in "$scratch/$theme"/*.png; do
        mv "$picture" "docs/pictures/$(basename "$picture" .png)-$theme.png"
    done
done
