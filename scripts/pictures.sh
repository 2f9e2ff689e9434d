#!/usr/bin/env bash
# Renews the pictures of the help book, those that its pages show, and of the README, from the pictures of a tour:
# pictures.sh <folder of the tour>. It needs ImageMagick. The tour is to run in American English (LC_ALL=en_US.UTF-8), and
# its program to lie in a folder that readers may see.
set -euo pipefail
tour=$1
project=$(cd "$(dirname "$0")/.." && pwd)
help=$project/help
widest=660

# The place of a picture in one of the tour, as width x height + left + top; the whole one for most.
part_of() {
  case $1 in
    estimate-lines) echo "estimate 878x438+0+178" ;;
    area) echo "estimate 300x305+884+102" ;;
    totals) echo "estimate 300x142+884+438" ;;
    *) echo "$1 -" ;;
  esac
}

rm -f "$help"/pictures/*.png
mkdir -p "$help/pictures"
# The picture of the tour that has this name.
picture() { ls "$tour"/*.png | grep -E "/[0-9]+-$1\.png$" | head -1; }

for name in $(grep -oh 'pictures/[A-Za-z0-9-]*\.png' "$help"/*.html | sort -u); do
  name=$(basename "$name" .png)
  read -r from part < <(part_of "$name")
  source=$(picture "$from")
  crop=()
  [ "$part" = - ] || crop=(-crop "$part" +repage)
  convert "$source" "${crop[@]}" -resize "$widest>" -strip -dither None -colors 64 PNG8:"$help/pictures/$name.png"
done
for name in estimate items proposal foundation-concrete-calculator; do
  convert "$(picture "$name")" -strip -dither None -colors 128 "PNG8:$project/docs/$name.png"
done
du -ch "$help"/pictures/*.png | tail -1
