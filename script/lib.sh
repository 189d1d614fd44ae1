# shellcheck shell=bash
# What every script here shares; sourced, never run. It moves to the checkout's
# root, so all paths below are relative to it; CALLER_DIR is where the user was.

set -euo pipefail

CALLER_DIR=$PWD
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
ROOT=$(pwd -P)
LOGS=build/logs
JOBS=$(nproc)

die() {
  echo "${0##*/}: $*" >&2
  exit 1
}

# usage FILE: prints the comment at the top of a script, which is its manual.
usage() {
  sed -n '2,/^[^#]/{/^#/!q; s/^# \{0,1\}//; p}' "$1"
}

# step TITLE LOG COMMAND…: runs a command quietly behind one progress line. All
# it prints goes to build/logs/LOG.log, whose end is shown when it fails.
step() {
  local title=$1 log=$LOGS/$2.log start=$SECONDS status=0
  shift 2
  mkdir -p "$LOGS"
  printf '%-44s' "$title"
  "$@" >"$log" 2>&1 </dev/null || status=$?
  if [ "$status" -eq 0 ]; then
    printf '%4d s\n' $((SECONDS - start))
  else
    printf '%4d s  FAILED (exit code %d)\n' $((SECONDS - start)) "$status"
    tail -n 60 "$log" | sed 's/^/    /'
    echo "The whole output: $ROOT/$log"
  fi
  return "$status"
}

# configure PRESET
configure() {
  # A checkout that was moved or copied with its build folder starts afresh.
  if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$ROOT" "build/$1/CMakeCache.txt"; then
    rm -rf "build/$1"
  fi
  step "Configuring ($1)" "configure-$1" cmake --preset "$1"
}

# build PRESET [TARGET]
build() {
  if [ $# -gt 1 ] && ! ninja -C "build/$1" -t query "$2" >/dev/null 2>&1; then
    die "this checkout has no target \"$2\" to build"
  fi
  step "Building ($1)" "build-$1" \
    cmake --build "build/$1" --parallel "$JOBS" ${2:+--target "$2"}
}

# Our own sources, those in the languages of clang-format.
sources() {
  local folder
  for folder in OvFoundation OvAppKit gallery palette tests benchmarks; do
    if [ -d "$folder" ]; then
      find "$folder" -type f \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' -o -name '*.m' \)
    fi
  done | sort
}

# A session is the surroundings of the graphical programs that a script starts:
# their own X server, user defaults, temporary folder and, because GNUstep's
# name server lives in the temporary folder, their own pasteboard and
# notification servers. Nothing of the user's is read or written, two scripts
# may run at once, and no process outlives the script.

# begin_session: opens a session that ends with the script.
begin_session() {
  SESSION=$(mktemp -d /tmp/ovappkit.XXXXXX)
  trap end_session EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  mkdir -m 700 "$SESSION/temp"
  mkdir "$SESSION/defaults" "$SESSION/library"
  local platform=${GNUSTEP_CONFIG_FILE:-/etc/GNUstep/GNUstep.conf}
  {
    grep -vE '^GNUSTEP_USER_(DEFAULTS_DIR|DIR_LIBRARY)=' "$platform"
    echo "GNUSTEP_USER_DEFAULTS_DIR=$SESSION/defaults"
    echo "GNUSTEP_USER_DIR_LIBRARY=$SESSION/library"
  } >"$SESSION/GNUstep.conf"
  # OV_SESSION marks our processes, also the daemons that leave our group.
  export OV_SESSION=$SESSION GNUSTEP_CONFIG_FILE=$SESSION/GNUstep.conf
  export TMPDIR=$SESSION/temp TEMP=$SESSION/temp TMP=$SESSION/temp
}

# start_display: adds an X server to the session and sets DISPLAY.
start_display() {
  local number
  command -v Xvfb >/dev/null || die "there is no Xvfb; run script/bootstrap"
  mkfifo "$SESSION/display"
  unset WAYLAND_DISPLAY XAUTHORITY
  Xvfb -displayfd 3 -screen 0 1440x900x24 -nolisten tcp \
    3>"$SESSION/display" >"$SESSION/Xvfb.log" 2>&1 </dev/null &
  XVFB=$!
  if ! read -r -t 30 number <"$SESSION/display" || [ -z "$number" ]; then
    tail -n 20 "$SESSION/Xvfb.log" >&2
    die "the X server did not start"
  fi
  export DISPLAY=:$number
}

# The processes that carry the session's mark in their environment. (A shell's
# own mark is set after it started, so a script never finds itself.)
session_processes() {
  local folder
  for folder in /proc/[0-9]*; do
    if grep -qzxF "OV_SESSION=$SESSION" "$folder/environ" 2>/dev/null; then
      echo "${folder#/proc/}"
    fi
  done
}

end_session() {
  local status=$? pid
  trap - EXIT
  trap '' HUP INT TERM
  # Graphical programs swallow the polite signals.
  for pid in $(session_processes); do
    [ "$pid" = "${XVFB:-}" ] || kill -KILL "$pid" 2>/dev/null || true
  done
  if [ -n "${XVFB:-}" ]; then  # politely: it removes its lock and its socket
    kill "$XVFB" 2>/dev/null || true
    wait "$XVFB" 2>/dev/null || true
  fi
  rm -rf "$SESSION"
  exit "$status"
}
