# SPDX-License-Identifier: LGPL-2.1-or-later
# shellcheck shell=bash
#
# Sourced by the scripts beside it: the repository's root and the steps that they share.

# File names are decoded by the locale's character set; a bare machine has none set.
[[ $(locale charmap) == UTF-8 ]] || export LC_ALL=C.UTF-8

# With CDPATH set, cd may go elsewhere and prints where.
root=$(unset CDPATH && cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

say() {
  printf '\n== %s\n' "$*"
}

install_packages() {
  "$root/scripts/install-packages" "$@"
}

# build PRESET [TARGET…]: configures and builds a preset, or only some targets of it. Ninja shows how
# far it is. Presets are found from the root only. Where CI is set, no warning passes.
build() {
  local preset=$1
  shift
  say "Configuring and building ($preset)"
  (cd "$root" && cmake --preset "$preset" -DCOMMONLIB_WARNINGS_AS_ERRORS="${CI:-OFF}" \
    ${CI:+-DCMAKE_CXX_FLAGS_DEBUG=-g1} && cmake --build --preset "$preset" ${1:+--target "$@"})
}
