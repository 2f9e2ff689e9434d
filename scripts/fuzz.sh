#!/usr/bin/env bash
# Runs each fuzz target for some seconds (60, or as given), beginning with what is delivered or usual.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
seconds=${1:-60}

need "${build_packages[@]}" "${fuzz_packages[@]}"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_numbers fuzz_dialect fuzz_character
seeds=build/fuzz/seeds
rm -rf $seeds
mkdir -p $seeds/{numbers,dialect,character}
n=0
for text in '12abc' '1 2' '-.5e-3' '1e308' '1,250' '$12.50' '0.1'; do printf '%s' "$text" >$seeds/numbers/$((n += 1)); done
for text in "delete * from Item where ItemId=3" "select * from OrderInfo where OrderDate >= #3/15/2024#" \
  "select * from Item where ItemName like '%joist%' order by Val(itemcode),itemcode"; do
  printf '%s' "$text" >$seeds/dialect/$((n += 1))
done
cp art/character/Merlin.ACS $seeds/character/
for target in numbers dialect character; do
  echo "Fuzzing $target"
  build/fuzz/tests/fuzz/fuzz_$target -max_total_time="$seconds" -max_len=20000 -timeout=20 -print_final_stats=1 \
    -artifact_prefix=build/fuzz/$target- $seeds/$target >build/fuzz/$target.log 2>&1 ||
    { tail -40 build/fuzz/$target.log; exit 1; }
  grep stat::number_of_executed build/fuzz/$target.log
done
