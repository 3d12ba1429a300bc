# SPDX-License-Identifier: LGPL-2.1-or-later
# shellcheck shell=bash
#
# Sourced by runs of several steps: each goes on after one that failed, and all are told of at the end.

step_failures=()
step_times=()

# step NAME COMMAND…
step() {
  local name=$1 start=$SECONDS
  shift
  printf '\n#### %s\n' "$name"
  "$@" || step_failures+=("$name")
  step_times+=("$name: $((SECONDS - start)) s")
}

# How long each step took, and "N passed, N failed". Fails when one has.
tell_steps() {
  printf '\n#### Time\n'
  printf '%s\n' "${step_times[@]}"
  ((${#step_failures[@]} == 0)) || printf 'failed: %s\n' "${step_failures[@]}"
  printf '\n%d passed, %d failed\n' $((${#step_times[@]} - ${#step_failures[@]})) ${#step_failures[@]}
  ((${#step_failures[@]} == 0))
}
