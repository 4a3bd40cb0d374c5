#!/usr/bin/env bash
# fuzz/run.sh NAME [SECONDS]: builds the fuzz target NAME with clang and its sanitizers. Runs it for that time, or until
# it finds a fault or Ctrl-C ends it. Installs the packages that it needs. The exit status is not 0 if it has found a
# fault. build/fuzz-found/NAME/ keeps the inputs that show a fault and, in corpus/, inputs with which the next run
# starts.
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

# Only the target reads the files that it writes: memory is faster than a disk, and does not wear out.
temporary=$(mktemp -d /dev/shm/tavrelkin-fuzz.XXXXXX 2>/dev/null || mktemp -d)
trap 'rm -rf -- "$temporary"' EXIT
found="$root/build/fuzz-found/$name"
mkdir -p -- "$found/corpus"

# Some code that no input has reached yet may need a longer text, but never more than 4 KB.
TMPDIR=$temporary LANG=C.UTF-8 LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1 \
  "$root/build/fuzz/fuzz/${name}Fuzz" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
  -artifact_prefix="$found/" "$found/corpus" "$root/fuzz/corpus/$name"
