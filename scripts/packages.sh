# What building and testing need, as Debian packages. Sourced by run, test and .ci/run.
# Installs what is missing, saying what, as root or with sudo. (Qt's speech asks for the declarative package when built.)
# Only names of real packages: one that others provide never counts as installed.

build_packages=(cmake ninja-build g++ qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-speech-dev qt6-declarative-dev
                qt6-tools-dev qt6-documentation-tools libqt6sql6-sqlite libgl1-mesa-dev libsqlite3-dev libicu-dev
                fonts-liberation)
test_packages=(libgtest-dev poppler-utils)
desk_packages=(xvfb xauth openbox xdotool dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi)
check_packages=(git clang-format-14 clang-tidy-14 locales)
fuzz_packages=(clang-14 libclang-rt-14-dev)
package_packages=(dpkg-dev librsvg2-bin desktop-file-utils appstream lintian)

need() {
  local missing=()
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) == *'ok installed' ]] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages, or sudo, as root first." >&2; return 1; }
    as_root=(sudo)
  fi
  # For the lock of another installation apt waits by itself, but not for that of another update.
  local said
  until said=$("${as_root[@]}" apt-get update -qq 2>&1); do
    [[ $said == *lists/lock* ]] || { echo "$said" >&2; return 1; }
    sleep 2
  done
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    -o DPkg::Lock::Timeout=600 "${missing[@]}" >/dev/null || { echo "Installing failed." >&2; return 1; }
}
