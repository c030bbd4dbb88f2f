#!/usr/bin/env bash
# take_pictures.sh PROGRAM [NAME...]: takes the manual's pictures from the running program, all or those
# named, on a screen of its own. Needs xvfb, xdotool, imagemagick and pngquant.
set -euo pipefail
cd "$(dirname "$0")/../.."
pictures=$PWD/resources/manual/pictures
samples=$PWD/resources/samples

if [ "${1:-}" != --inside ]; then
  program=$(realpath "$1")
  shift
  exec xvfb-run --auto-servernum --server-args="-screen 0 1280x800x24 -noreset" \
    "$PWD/tools/manual/take_pictures.sh" --inside "$program" "$@"
fi
program=$2
shift 2

home=$(mktemp -d)
trap 'kill "${running:-}" 2>/dev/null; rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_STATE_HOME=$home XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home
export QT_SCALE_FACTOR=1 QT_FONT_DPI=96 LANG=C.UTF-8

# settle: waits until two looks at the screen are the same.
settle() {
  local last='' now
  for _ in $(seq 40); do
    sleep 0.4
    now=$(import -window root -depth 8 rgb:- | sha1sum)
    [ "$now" != "$last" ] || return 0
    last=$now
  done
}
keys() { xdotool key --delay 60 "$@"; settle; }
click() { xdotool mousemove "$1" "$2" click 1; settle; }

# start FILE [WIDTH HEIGHT]: a window at the corner of the screen with the keyboard in its input pane.
start() {
  "$program" "$samples/$1" &
  running=$!
  window=$(xdotool search --sync --onlyvisible --name "^$1\$" | tail -1)
  xdotool windowmove "$window" 0 0 windowsize "$window" "${2:-1080}" "${3:-600}" windowfocus "$window"
  xdotool mousemove 1270 790
  settle
}
# side [WIDTH HEIGHT]: turns to the other window of the program.
side() {
  local document=$window
  window=$(xdotool search --onlyvisible --pid "$running" | grep -vx "$document" | tail -1)
  xdotool windowmove "$window" 0 0 windowraise "$window"
  [ $# -eq 0 ] || xdotool windowsize "$window" "$@"
  settle
}
stop() { kill "$running"; wait "$running" 2>/dev/null || true; }

# shot NAME [GEOMETRY]: what the screen shows, the whole window or a part of it.
shot() {
  local geometry=${2:-}
  if [ -z "$geometry" ]; then
    eval "$(xdotool getwindowgeometry --shell "$window")"
    geometry=${WIDTH}x${HEIGHT}+${X}+${Y}
  fi
  import -window root -crop "$geometry" +repage png:- |
    pngquant --speed 1 --strip 128 - >"$pictures/$1.png"
}

# The pop-up takes the first letters of an item.
view() { click 350 52; xdotool type "$1"; keys Return; xdotool mousemove 1270 790; settle; }

take_window() { start welcome.txt; shot window; stop; }
take_language() { start letters.txt; keys ctrl+shift+r; view Lan; shot language; stop; }
take_script() { start letters.txt; keys ctrl+shift+r; view S; shot script; stop; }
take_lemmas() { start welcome.txt; keys ctrl+shift+r; view Lem; shot lemmas; stop; }
take_list() { start welcome.txt; keys ctrl+l; shot list; stop; }
take_find() { start welcome.txt; keys ctrl+f; xdotool type --delay 60 star; settle; shot find; stop; }
take_colours() { start welcome.txt; keys alt+o c; side; shot colours; stop; }
take_palette() { start letters.txt; keys ctrl+shift+r; keys alt+o p; side; shot palette; stop; }
take_dark() { GTK_THEME=Adwaita:dark QT_QPA_PLATFORMTHEME=gtk3 start letters.txt; shot dark; stop; }

[ $# -gt 0 ] || set -- window language script lemmas list find colours palette dark
for name in "$@"; do "take_$name"; done
ls -l "$pictures"
