# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Steps of a person in front of the program's windows, for scripts with a display and a window
# manager. `window` is the one that the next steps go to.

# Runs the calling script again on a display of its own, with a window manager and a `home` that
# stands for all of a user's folders and goes away with it.
on_own_display() { # the script and its arguments
  if [ -n "${OWN_DISPLAY_HOME:-}" ]; then
    home=$OWN_DISPLAY_HOME
    export HOME=$home XDG_RUNTIME_DIR=$home QUILLANE_HOME=$home/quillane QT_QPA_PLATFORM=xcb
    export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
    openbox &>"$home/openbox.log" &
    trap "kill $!" EXIT
    return
  fi
  OWN_DISPLAY_HOME=$(mktemp -d)
  export OWN_DISPLAY_HOME
  trap 'rm -rf "$OWN_DISPLAY_HOME"' EXIT
  xvfb-run -a -s '-screen 0 1280x900x24 -noreset' "$@"
  exit
}

fail() {
  echo "$*" >&2
  exit 1
}

await() { # what is waited for, and a command that succeeds once it is there
  local what=$1 try
  shift
  for try in $(seq 300); do
    "$@" && return
    sleep 0.1
  done
  fail "waited in vain: $what"
}

find_window() { # with a title like this
  window=$(xdotool search --onlyvisible --name "$*" 2>/dev/null | tail -n 1) || true
  [ -n "$window" ]
}

no_window() {
  ! find_window "$*"
}

wait_for() { # makes the window with this title the one that the next steps go to
  await "the window \"$*\"" find_window "$*"
  xdotool windowactivate --sync "$window"
  sleep 0.7 # until it is painted
}

wait_end() { # of the window with this title
  await "the end of the window \"$*\"" no_window "$*"
}

mousemove_to() { # within the window, in pixels
  xdotool mousemove --window "$window" "$@"
}

click_at() {
  mousemove_to "$@"
  xdotool click 1
}

right_click_at() {
  mousemove_to "$@"
  xdotool click 3
}

key() { # one after the other, as a person types
  xdotool key --delay 80 "$@"
}

choose_file() { # in the file dialog with the title that follows the path
  local path=$1
  wait_for "${*:2}"
  key ctrl+a
  xdotool type --delay 20 "$path"
  key Return
}
