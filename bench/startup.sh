#!/usr/bin/env bash
# Times the desktop program's start on a virtual X display: from the launch to the splash,
# from the splash skipped by a key to the main window, the animated first deal, and the
# memory it ends with. The program prints its own moments when QUORVALE_TIMING is set (see
# src/desktop/StartupTiming.h); this script launches it, sends one key when the splash has
# been painted, and turns the moments into intervals from the launch.
#
#   bench/startup.sh [program] [runs]      defaults: build-bench/quorvale, 5 runs
#
# Two kinds of start are timed, `runs` of each:
#   first start  every run in a new, empty home: the program sets up its settings and
#                registers its file types with the desktop on the way;
#   later start  every run in one home that an untimed start has already set up. The
#                script stops the program with SIGTERM, which keeps the game on the table,
#                so each later start brings back the game of the run before.
# The homes are temporary (HOME and the XDG folders point into them), so the user's real
# settings and saved games are never touched. The display (:97 unless QV_DISPLAY says
# otherwise) is started and stopped here. Needs Xvfb, xdpyinfo and xdotool; without
# xdotool the splash goes after its two seconds and only the key's own figure is lost.
set -euo pipefail

program=$(realpath "${1:-build-bench/quorvale}")
runs=${2:-5}
display=":${QV_DISPLAY:-97}"
[[ -x $program ]] || { echo "no program at $program" >&2; exit 1; }
have_xdotool=0
command -v xdotool >/dev/null && have_xdotool=1

work=$(mktemp -d /tmp/quorvale-startup.XXXXXX)
xvfb_pid=""
app_pid=""
cleanup() {
  [[ -n $app_pid ]] && kill "$app_pid" 2>/dev/null || true
  [[ -n $xvfb_pid ]] && kill "$xvfb_pid" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# -noreset: the server keeps the pointer where it was put when its last client leaves.
Xvfb "$display" -screen 0 1920x1080x24 -nolisten tcp -noreset >"$work/xvfb.log" 2>&1 &
xvfb_pid=$!
for _ in $(seq 50); do
  xdpyinfo -display "$display" >/dev/null 2>&1 && break
  sleep 0.1
done
xdpyinfo -display "$display" >/dev/null 2>&1 || { echo "Xvfb did not start on $display" >&2; exit 1; }

# With no window manager the keyboard follows the pointer: it rests where the splash
# comes up (the top left corner), so the one key goes to the splash.
[[ $have_xdotool == 1 ]] && DISPLAY=$display xdotool mousemove --sync 40 40

# A first start with nothing waiting opens the game selection: the first starts give a saved
# game with no moves on the command line, so they end in the animated deal. Later starts
# resume the game the last one left.
first_game="$work/first.vq0"
mkdir -p "$work/cli-home"
printf 'new Spider 482913\nsave %s\nexit\n' "$first_game" |
  env HOME="$work/cli-home" XDG_CONFIG_HOME="$work/cli-home/.config" XDG_DATA_HOME="$work/cli-home/.local/share" \
    "$(dirname "$program")/quorvale-cli" run >/dev/null

new_home() {
  mkdir -p "$1/.config" "$1/.local/share" "$1/.cache" "$1/runtime"
  chmod 700 "$1/runtime"
}

# One start in home $1, its moments written to log $2; $3, if given, on the command line.
run_once() {
  local home=$1 log=$2 fifo="$2.fifo" launch line
  mkfifo "$fifo"
  launch=$(date +%s.%N)
  env DISPLAY="$display" HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" \
    XDG_CACHE_HOME="$home/.cache" XDG_RUNTIME_DIR="$home/runtime" QUORVALE_TIMING=1 \
    "$program" ${3:+"$3"} 2>"$fifo" &
  app_pid=$!
  exec 3<"$fifo"
  echo "launch $launch" >"$log"
  # Reading blocks until the program prints, so nothing polls the display while it starts.
  while IFS= read -r -t 20 line <&3; do
    echo "$line" >>"$log"
    case $line in
      *" splash: first paint done")
        [[ $have_xdotool == 1 ]] && DISPLAY=$display xdotool key space ;;
      *" event loop after the deal")
        break ;;
    esac
  done
  # The memory a second after the first dealt frame, once the program has settled.
  sleep 1
  grep -E '^Vm(HWM|RSS):' "/proc/$app_pid/status" | tr -s ' \t' ' ' | sed 's/^/settled /' >>"$log" || true
  kill "$app_pid" 2>/dev/null || true
  wait "$app_pid" 2>/dev/null || true
  app_pid=""
  cat <&3 >>"$log"  # a frame painted after the deal, if there was one
  exec 3<&-
  rm -f "$fifo"
}

# One line of intervals in ms per log; "-" where a moment is missing.
intervals() {
  local log
  for log in "$@"; do
    awk '
      $1 == "launch" { t0 = $2 * 1000 }
      $1 == "quorvale-timing" {
        what = $7; for (i = 8; i <= NF; i++) what = what " " $i
        at[what] = $2; hwm[what] = $4
      }
      $1 == "settled" && $2 == "VmHWM:" { settled = $3 }
      function since(a, b) { return ((a in at) && (b == "" || (b in at))) ? sprintf("%.1f", at[a] - (b == "" ? t0 : at[b])) : "-" }
      END {
        s = since("splash: first paint done", "")
        m = since("main window: first paint done", "splash dismissed")
        # The deal paints its own frames; its last is on screen when it returns, unless a
        # frame was still owed and came after it.
        frame = ("table: first frame after the deal done" in at) ? "table: first frame after the deal done" : "first deal done"
        printf "%s %s %s %s %s %s %s %s %s %s %s %s %s\n",
          since("main entered", ""), since("main window built", "main entered"),
          since("splash: first paint done", "main window built"), s,
          since("splash dismissed", "splash: first paint done"), m,
          (s == "-" || m == "-") ? "-" : sprintf("%.1f", s + m),
          since("main window: first paint done", ""),
          since("first deal done", "main window: first paint done"),
          since(frame, "first deal done"),
          since(frame, ""),
          ("first deal done" in hwm) ? sprintf("%.1f", hwm["first deal done"] / 1024) : "-",
          settled == "" ? "-" : sprintf("%.1f", settled / 1024)
      }' "$log"
  done
}

names=("launch -> main() entered" "main() -> main window built" "main window built -> splash painted"
  "launch -> splash painted" "splash painted -> key handled" "splash dismissed -> main window painted"
  "skip by key (launch -> splash + dismissed -> main)" "launch -> main window painted (as run)"
  "main window painted -> first deal done" "first deal done -> dealt frame on screen"
  "launch -> dealt frame on screen" "VmHWM at the deal's end (MB)" "VmHWM 1 s after the dealt frame (MB)")

report() {
  local title=$1 table=$2 col median
  echo "$title, $runs runs (ms unless marked), one run a line:"
  column -t "$table"
  echo "Medians:"
  for col in $(seq ${#names[@]}); do
    median=$(awk -v c="$col" '$c != "-" { print $c }' "$table" | sort -g |
      awk '{ v[NR] = $1 } END { if (NR == 0) print "-"; else if (NR % 2) print v[(NR + 1) / 2]; else printf "%.1f\n", (v[NR / 2] + v[NR / 2 + 1]) / 2 }')
    printf '  %-52s %s\n' "${names[$((col - 1))]}" "$median"
  done
  echo
}

logs=()
for run in $(seq "$runs"); do
  new_home "$work/first$run"
  run_once "$work/first$run" "$work/first$run.log" "$first_game"
  logs+=("$work/first$run.log")
done
intervals "${logs[@]}" >"$work/first.table"

new_home "$work/later"
run_once "$work/later" "$work/prime.log" "$first_game"  # untimed: sets the home up
logs=()
for run in $(seq "$runs"); do
  run_once "$work/later" "$work/later$run.log"
  logs+=("$work/later$run.log")
done
intervals "${logs[@]}" >"$work/later.table"

report "First start" "$work/first.table"
report "Later start" "$work/later.table"
