#!/usr/bin/env bash
# Runs the tests of a preset that is built, with a home of their own: run_tests.sh <preset>
set -euo pipefail
cd "$(dirname "$0")/.."
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
HOME=$home XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local/share XDG_CACHE_HOME=$home/.cache \
  ctest --preset "$1" -j "$(nproc)"
