# shellcheck shell=bash
# A bare Debian 12 system in a folder, to test the package in. check.sh sources this file and sets `root` to the source
# folder. The packages come from the sources of this machine's apt.
: "${root:?}"

store="$root/build/package-check"  # kept from one run to the next
tree="$store/tree"
bare=  # the folder for debootstrap, which fails in a path with a blank

# Prints address, suite and component of each part of Debian 12 in the sources of this machine's apt.
debian_sources() {
  # shellcheck disable=SC2016  # It is apt that expands these.
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
    sed -nE '/ bookworm(-updates|-security)? /p'
}

# Prints the mirror of the main archive.
mirror() { debian_sources | sed -n 's/ bookworm main$//p' | head -n 1; }

# bootstrap FOLDER: makes a bare Debian 12 in the folder, with this machine's sources.
bootstrap() {
  local folder=$1 from proxy=
  from=$(mirror)
  if [[ -z $from ]]; then
    apt_get update
    from=$(mirror)
  fi
  if [[ -z $from ]]; then
    echo "This machine's apt has no source for Debian 12 (bookworm), so the package can't be tested." >&2
    return 1
  fi
  eval "$(apt-config shell proxy Acquire::http::Proxy)"
  if ! env ${proxy:+http_proxy="$proxy"} debootstrap --variant=minbase bookworm "$folder" "$from"; then
    tail -n 5 -- "$folder/debootstrap/debootstrap.log" || true
    echo "debootstrap could not make a bare Debian 12 from $from, the mirror of this machine's apt." >&2
    return 1
  fi
  debian_sources | sed 's/^/deb /' >"$folder/etc/apt/sources.list"
  apt-config dump Acquire | sed -nE '/^Acquire::(https?:|Retries|Check-)/p' >"$folder/etc/apt/apt.conf.d/90outside"
}

# Saves the system that debootstrap makes in an archive, once: each run removes its tree.
make_base() {
  local base=$1
  bare=$(mktemp --directory /var/tmp/tavrelkin-base.XXXXXX)
  chmod 755 -- "$bare"
  bootstrap "$bare"
  tar --create --gzip --one-file-system --file "$base.part" --directory "$bare" .
  mv -- "$base.part" "$base"
}

# Makes a fresh tree. remove_tree must remove it.
make_tree() {
  local base="$store/bookworm.tar.gz"
  remove_tree
  mkdir -p -- "$tree" "$store/archives/partial"
  [[ -f $base ]] || make_base "$base"
  tar --extract --file "$base" --directory "$tree"
  cp --dereference -- /etc/resolv.conf /etc/hosts "$tree/etc/"
  mount -t proc proc "$tree/proc"
  mount --bind -- "$store/archives" "$tree/var/cache/apt/archives"
  mkdir -p -- "$tree/tmp/.X11-unix"
  mount --bind -- /tmp/.X11-unix "$tree/tmp/.X11-unix"
}

# Removes nothing outside the tree, even if a mount could not be undone.
remove_tree() {
  local mounted
  for mounted in proc var/cache/apt/archives tmp/.X11-unix; do
    ! mountpoint --quiet -- "$tree/$mounted" || umount --lazy -- "$tree/$mounted"
  done
  rm -rf --one-file-system -- "$tree" ${bare:+"$bare"}
}

# in_tree COMMAND ...: runs the command in the tree as root, without this machine's environment.
in_tree() {
  env --ignore-environment PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    chroot "$tree" "$@"
}

apt_in_tree() {
  in_tree apt-get --quiet --yes --no-install-recommends -o Dpkg::Use-Pty=0 -o APT::Sandbox::User=root "$@"
}

# Lists all files except those of apt and dpkg that change with each step, and temporary files.
list_tree() {
  local -a passed_over=(-path ./var/cache -o -path ./var/log -o -path ./var/lib/apt -o -path ./var/lib/dpkg
    -o -path ./proc -o -path ./tmp)
  (cd -- "$tree" && find . -xdev \( "${passed_over[@]}" \) -prune -o -print | sort)
}
