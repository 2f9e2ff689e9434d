#!/usr/bin/env bash
# Puts the program folder together: stage.sh <build folder> <program folder>. The program, its conversions, its
# voice, its help, its character and the sample backup are renewed; a database that is there is the user's and stays.
set -euo pipefail
build=$1
folder=$2
mkdir -p "$folder"
# Renamed into place, so that a running copy keeps the file it was started from.
for file in torvane Convert.exe Speak.exe delivered/Sample.bak delivered/Merlin.ACS delivered/LARKFENVERSION2.HLP; do
  cp "$build/$file" "$folder/.staging"
  mv -f "$folder/.staging" "$folder/$(basename "$file")"
done
[ -e "$folder/Larkfen.mdb" ] || cp "$build/delivered/Larkfen.mdb" "$folder/Larkfen.mdb"
