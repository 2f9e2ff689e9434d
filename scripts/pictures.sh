#!/usr/bin/env bash
# Renews the pictures of the help book, those that its pages show, from the pictures of a tour:
# pictures.sh <folder of the tour>. It needs ImageMagick.
set -euo pipefail
tour=$1
help=$(cd "$(dirname "$0")/../help" && pwd)
widest=700

# The place of a picture in one of the tour, as width x height + left + top; the whole one for most.
part_of() {
  case $1 in
    estimate-lines) echo "estimate 878x424+0+182" ;;
    area) echo "estimate 300x305+884+102" ;;
    totals) echo "estimate 300x142+884+438" ;;
    *) echo "$1 -" ;;
  esac
}

# A calculator's panel without the tabs above it and the foot below, by the size of its window.
panel_of() {
  case $1 in
    1026x601) echo 1000x448+13+103 ;;
    795x555) echo 768x382+14+124 ;;
    813x472) echo 785x318+14+103 ;;
    433x290) echo 405x182+14+57 ;;
  esac
}

rm -f "$help"/pictures/*.png
mkdir -p "$help/pictures"
for name in $(grep -oh 'pictures/[A-Za-z0-9-]*\.png' "$help"/*.html | sort -u); do
  name=$(basename "$name" .png)
  read -r from part < <(part_of "$name")
  source=$(ls "$tour"/[0-9][0-9]-"$from".png | head -1)
  crop=()
  [ "$part" = - ] || crop=(-crop "$part" +repage)
  panel=$(panel_of "$(identify -format '%wx%h' "$source")")
  [ -z "$panel" ] || crop=(-crop "$panel" +repage -fuzz 12% -trim +repage -bordercolor '#ebebeb' -border 8)
  convert "$source" "${crop[@]}" -resize "$widest>" -strip -dither None -colors 64 PNG8:"$help/pictures/$name.png"
done
du -ch "$help"/pictures/*.png | tail -1
