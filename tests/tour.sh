#!/usr/bin/env bash
# The tour as ./run starts it, in a build folder: it must reach its end and leave the proposal of the new estimate.
set -euo pipefail
scripts=$(cd "$(dirname "$0")/../scripts" && pwd)
cd "$1"
rm -rf tour-test
mkdir tour-test
"$scripts/stage.sh" . tour-test/program
HOME=$PWD/tour-test QT_QPA_PLATFORM="offscreen:configfile=$scripts/../tools/tour/screen.json" ./tour tour-test/program tour-test
pdftotext -layout tour-test/proposal.pdf - | grep -q "Dana Whitfield"
