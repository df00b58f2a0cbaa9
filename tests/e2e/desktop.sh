# A desktop for scripts that drive the program as a user would: an X server of its own with a
# window manager, the program on it, checks, and pictures. To be sourced from the repository's
# root, with the staged build in $stage and a folder for all that is left behind in $out.

rm -rf "$out"
mkdir -p "$out"
for tool in Xvfb openbox xdotool import xwininfo; do
    command -v "$tool" >/dev/null || {
        echo "e2e: $tool is missing (Debian: xvfb openbox xdotool imagemagick x11-utils)" >&2
        exit 1
    }
done

export XDG_RUNTIME_DIR=$PWD/$out/runtime LC_ALL=C.UTF-8
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
mkdir -m 700 "$XDG_RUNTIME_DIR"
# The server takes the first display that is free: others may be at work on this machine.
mkfifo "$out/display"
Xvfb -displayfd 3 -screen 0 1600x1000x24 3>"$out/display" >/dev/null 2>&1 &
server=$!
trap 'kill $server 2>/dev/null || true' EXIT
read -r display <"$out/display"
export DISPLAY=:$display
openbox >/dev/null 2>&1 &
sleep 0.5

failed=0
check() { # what, then a command that has to succeed
    local what=$1
    shift
    if "$@" >/dev/null; then
        echo "ok    $what"
    else
        echo "FAIL  $what"
        failed=1
    fi
}
said() { grep -qF -- "$1" "$out/transcript"; }
waits_for() { # a command, until it succeeds
    for _ in $(seq 100); do "$@" >/dev/null 2>&1 && return 0; sleep 0.1; done
    return 1
}
window() { xdotool search --onlyvisible --name "$1" | head -1; }
place() { # x y width height of a window
    xdotool getwindowgeometry --shell "$(window "$1")" |
        awk -F= '/^(X|Y|WIDTH|HEIGHT)=/ {printf "%s ", $2} END {print ""}'
}
picture() { sleep 0.3; import -window root "$out/$1.png"; }
enter() { # lines for the command line
    for line in "$@"; do
        xdotool type --delay 5 -- "$line"
        xdotool key Return
        sleep 0.25
    done
}
start() { # a drawing, and options
    "$stage/tessaly" --support "$out/support" --transcript "$out/transcript" "$@" \
        >>"$out/stdout" 2>>"$out/stderr" &
    program=$!
    waits_for window "Tessaly"
    sleep 0.7
    xdotool windowactivate --sync "$(window Tessaly)"
    xdotool key ctrl+l
}
has_ended() { ! kill -0 "$program" 2>/dev/null; }
leave() { # how changes are answered, if that is asked
    xdotool key ctrl+l
    enter QUIT
    sleep 0.4
    [ $# -gt 0 ] && has_ended || [ $# -eq 0 ] || xdotool key "$1"
    waits_for has_ended
}
finish() { # the exit status is that of all checks
    check "nothing was said to standard error" test ! -s "$out/stderr"
    [ $failed -eq 0 ] && echo "e2e: all is well"
    exit $failed
}
