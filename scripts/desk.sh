#!/usr/bin/env bash
# The program at a desk: a display of its own, a window manager, a real mouse and keys. desk.sh <build folder> [tests]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need "${desk_packages[@]}"
export TORVANE_BUILD=$PWD/$1
shift
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
HOME=$runtime XDG_RUNTIME_DIR=$runtime xvfb-run -a -s "-screen 0 1280x1024x24" dbus-run-session -- \
  bash -c 'openbox & /usr/bin/python3 tests/desk/roads_test.py "$@"' roads "$@"
