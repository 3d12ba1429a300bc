# SPDX-License-Identifier: LGPL-2.1-or-later
# shellcheck shell=bash
#
# Sourced by scripts that build for Windows, after common.sh: finds Qt, the media libraries and those for pictures
# built for it.
#
# Each is what its variable names (COMMONLIB_WINDOWS_QT, COMMONLIB_WINDOWS_MEDIA), else what lies in a
# folder windows-qt beside the repository, in a folder windows of one beside it, or so beside a folder
# above it: a folder with the part's own file in it or in its only sub-folder, or an archive (qt*.tar.xz,
# media*.tar.xz) of such a folder, unpacked once into build/. The libraries for pictures are those that
# COMMONLIB_WINDOWS_LIBRARIES names, else those that scripts/windows-libraries has built.

# A file that tells the folder of a part.
declare -A part_files=([qt]=lib/cmake/Qt5/Qt5Config.cmake [media]=lib/pkgconfig/libavformat.pc)

# part_in PART PLACE: the first at or in PLACE, a folder of it or an archive.
part_in() {
  local file=${part_files[$1]} place=$2 found
  if [[ -f $place || -f $place/$file ]]; then
    printf '%s\n' "$place"
    return
  fi
  for found in "$place"/*/"$file"; do
    [[ ! -f $found ]] || { printf '%s\n' "${found%/"$file"}" && return; }
  done
  for found in "$place/$1"*.tar.xz; do
    [[ ! -f $found ]] || { printf '%s\n' "$found" && return; }
  done
  return 1
}

# find_part PART: where it is looked for says the head of this file.
find_part() {
  local above=$root place
  local -n named=COMMONLIB_WINDOWS_${1^^}
  if [[ -n ${named:-} ]]; then
    part_in "$1" "$named"
    return
  fi
  while [[ $above != / ]]; do
    above=$(dirname -- "$above")
    for place in "${above%/}"/windows-qt "${above%/}"/*/windows; do
      ! part_in "$1" "$place" || return 0
    done
  done
  return 1
}

# unpacked_part PART: its folder; an archive is unpacked into build/windows-PART when that is older or of
# another archive.
unpacked_part() {
  local found target=$root/build/windows-$1
  found=$(realpath -- "$(find_part "$1")")
  if [[ -d $found ]]; then
    printf '%s\n' "$found"
    return
  fi
  if [[ ! -f $target/unpacked || $found -nt $target/unpacked || $(<"$target/unpacked") != "$found" ]]; then
    rm -rf "$target"
    mkdir -p "$target"
    tar -xf "$found" -C "$target"
    printf '%s\n' "$found" >"$target/unpacked"
  fi
  part_in "$1" "$target"
}

# require_windows_parts PART…: fails, in words, where one is missing.
require_windows_parts() {
  local part
  for part in "$@"; do
    find_part "$part" >/dev/null || {
      echo "$(basename -- "$0"): no $part for Windows here; see docs/building.md" >&2
      exit 1
    }
  done
}

# use_windows_parts [--without-media]: sets COMMONLIB_WINDOWS_QT to a folder, and where they are wanted
# COMMONLIB_WINDOWS_MEDIA and COMMONLIB_WINDOWS_LIBRARIES, which is built when it is not there. A configured build keeps
# to its folders, even when they have gone, so that is forgotten when they are others, with the modules made of them.
use_windows_parts() {
  local cache=$root/build/windows/CMakeCache.txt part
  COMMONLIB_WINDOWS_QT=$(unpacked_part qt)
  if [[ ${1:-} == --without-media ]] || ! find_part media >/dev/null; then
    COMMONLIB_WINDOWS_MEDIA=
    COMMONLIB_WINDOWS_LIBRARIES=
  else
    COMMONLIB_WINDOWS_MEDIA=$(unpacked_part media)
    "$root/scripts/windows-libraries"
    COMMONLIB_WINDOWS_LIBRARIES=${COMMONLIB_WINDOWS_LIBRARIES:-$root/build/windows-libraries}
  fi
  export COMMONLIB_WINDOWS_QT COMMONLIB_WINDOWS_MEDIA COMMONLIB_WINDOWS_LIBRARIES
  for part in COMMONLIB_WINDOWS_{QT,MEDIA,LIBRARIES}; do
    grep -qxF "$part:PATH=${!part}" "$cache" 2>/dev/null || rm -rf "$cache" "$root/build/windows/bin"
  done
}

# Ends Wine's server of WINEPREFIX, if one runs, and waits for that.
stop_wine() {
  local wineserver
  wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)
  ! "$wineserver" -k 2>/dev/null || "$wineserver" -w
}
