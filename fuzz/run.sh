#!/usr/bin/env bash
# fuzz/run.sh NAME [SECONDS]: builds the fuzz target NAME with clang and its sanitizers and runs it for so long, or else
# until it finds a fault or Ctrl-C ends it; installs what that takes. The exit status is not 0 where a fault was found.
# What it keeps is in build/fuzz-found/NAME/: in corpus/ inputs for the next run to begin with, and inputs that show a
# fault.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
source "$root/scripts/build.sh"

name=${1:-}
seconds=${2:-0}
if (($# < 1 || $# > 2)) || [[ ! -f $root/fuzz/${name}Fuzz.cpp || ! $seconds =~ ^[0-9]+$ ]]; then
  echo "Usage: fuzz/run.sh NAME [SECONDS], where NAME is one of:" >&2
  basename --multiple --suffix=Fuzz.cpp -- "$root"/fuzz/*Fuzz.cpp >&2
  exit 2
fi

require_packages build fuzz
configure fuzz
cmake --build "$root/build/fuzz" --target "${name}Fuzz"

# The files that a target writes are for its own eyes: memory is faster than a disk, and lasts longer.
temporary=$(mktemp -d /dev/shm/tavrelkin-fuzz.XXXXXX 2>/dev/null || mktemp -d)
trap 'rm -rf -- "$temporary"' EXIT
found="$root/build/fuzz-found/$name"
mkdir -p -- "$found/corpus"

# Code that no input has reached yet may need a text that is long for its kind, but none needs 4 KB.
TMPDIR=$temporary LANG=C.UTF-8 LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1 \
  "$root/build/fuzz/fuzz/${name}Fuzz" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
  -artifact_prefix="$found/" "$found/corpus" "$root/fuzz/corpus/$name"
