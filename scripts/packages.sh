# shellcheck shell=bash
# The Debian 12 packages that each purpose needs, and their installation. All scripts that need packages source this
# file.

packages_for() {
  case $1 in
    build)
      echo cmake g++ libboost-context-dev libpipewire-0.3-dev libxcb-shm0-dev libxcb-xinput-dev libxcb1-dev ninja-build pkgconf qt6-base-dev
      ;;
    run) echo fonts-dejavu-core ;;
    wayland) echo libpipewire-0.3-modules pipewire-bin qt6-wayland ;;
    display) echo imagemagick openbox x11-utils x11-xserver-utils xvfb ;;
    test)
      echo at-spi2-core dbus-daemon dbus-session-bus-common gir1.2-atspi-2.0 gir1.2-gtk-3.0 libgmock-dev libgtest-dev \
        libpipewire-0.3-modules libxcb-res0-dev libxcb-xtest0-dev openbox pipewire-bin python3-gi \
        x11-xserver-utils xclip xvfb
      ;;
    compositor)
      echo at-spi2-core dbus-bin dbus-daemon dbus-session-bus-common gir1.2-atspi-2.0 gir1.2-gstreamer-1.0 \
        gir1.2-gtk-3.0 gir1.2-gtk-4.0 gstreamer1.0-pipewire gstreamer1.0-plugins-base libglib2.0-bin libgl1-mesa-dri \
        mutter pipewire-bin python3-gi qt6-wayland wireplumber wl-clipboard xdg-desktop-portal xdg-desktop-portal-gnome
      ;;
    bench) echo libbenchmark-dev ;;
    guide) echo xdotool ;;
    fuzz) echo clang libclang-rt-14-dev llvm ;;
    check) echo appstream clang-format clang-tidy desktop-file-utils gcovr git mandoc shellcheck ;;
    package)
      echo appstream debian-archive-keyring debootstrap desktop-file-utils dpkg-dev imagemagick lintian x11-utils \
        x11-xserver-utils xvfb
      ;;
    icons) echo librsvg2-bin ;;
    *) echo "packages_for: no purpose is called '$1'" >&2; return 2 ;;
  esac
}

# Prints the given packages that are not installed, one a line.
missing_packages() {
  local package status installed=" "
  while read -r package status; do
    [[ $status != installed ]] || installed+="$package "
  done < <(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
  for package in "$@"; do
    [[ $installed == *" $package "* ]] || printf '%s\n' "$package"
  done
}

# Runs apt-get with the given arguments as root and without questions. Only sudo may ask, for its password and at a
# terminal.
apt_get() {
  local -a as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Installing packages needs root rights, and this system has no sudo." >&2
      return 1
    fi
    as_root=(sudo)
    [[ -t 0 && -t 2 ]] || as_root=(sudo -n)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120 \
    -o Dpkg::Use-Pty=0 "$@" </dev/null
}

# Installs the missing packages for the given purposes; prints and does nothing if none is missing.
require_packages() {
  local purpose
  local -a wanted=() more missing
  for purpose in "$@"; do
    read -ra more <<<"$(packages_for "$purpose")"
    wanted+=("${more[@]}")
  done
  if ! command -v dpkg-query >/dev/null; then
    echo "This is not a Debian system. Install the contents of these Debian packages by hand: ${wanted[*]}" >&2
    return 0
  fi
  mapfile -t missing < <(missing_packages "${wanted[@]}" | sort -u)
  ((${#missing[@]} > 0)) || return 0

  echo "Installing ${missing[*]}"
  local -a install=(install --yes --no-install-recommends "${missing[@]}")
  # Fetches the package lists only if they are missing, or so old that their packages are gone.
  if apt-cache show --no-all-versions "${missing[@]}" &>/dev/null && apt_get "${install[@]}"; then return 0; fi
  if apt_get update && apt_get "${install[@]}"; then return 0; fi
  echo "The missing packages could not be installed. As root, run: apt-get ${install[*]}" >&2
  return 1
}
