# shellcheck shell=bash
# What the tests share that run the program on a real X server with a window manager. Sourced. Gives every test a
# folder of its own ($work) that is also its home, and ends all that it started. A check that fails is told with what
# was found, and the others still run; `finish` counts them.

work="$(mktemp -d)"
processes=()
midi_server=""
declare -A logs
passed=0
failed=0

end_surely() {
    kill "$1" 2>/dev/null || return 0
    for _ in $(seq 100); do kill -0 "$1" 2>/dev/null || return 0; sleep 0.1; done
    kill -KILL "$1" 2>/dev/null || true
}

cleanup() {
    trap '' HUP INT TERM # `timeout` tells twice
    # A MIDI server ends before its clients: it waits long for one that goes without a word, and killed it would keep
    # its place among the few that the system has for servers.
    [ -z "$midi_server" ] || end_surely "$midi_server"
    # The last started ends first: a program before the server that shows it.
    local number
    for ((number = ${#processes[@]} - 1; number >= 0; --number)); do end_surely "${processes[number]}"; done
    wait 2>/dev/null || true
    # The second is what a MIDI server leaves that had to be killed.
    rm -rf "$work" /dev/shm/jack*tabrova-$$_*
}
trap cleanup EXIT
trap 'exit 1' HUP INT TERM

# check TEXT COMMAND...: what the command writes is the measured value.
check() {
    local text="$1" result=FAILED found
    shift
    if "$@" >"$work/found" 2>&1; then
        result=ok
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
    fi
    found="$(cat "$work/found")"
    echo "$result: $text${found:+: $found}"
}

# Nothing further can be looked at.
give_up() {
    failed=$((failed + 1))
    echo "FAILED: $1"
    finish
}

# skip REASON: this machine cannot run the test. ctest knows the code.
skip() {
    echo "skipped: $1"
    exit 77
}

finish() {
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
    exit
}

need_tools() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || give_up "$tool is not installed"
    done
}

# wait_until SECONDS COMMAND...
wait_until() {
    local end=$((SECONDS + $1 + 1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

# launch NAME COMMAND...: in the background, apart from this terminal; its output in $work/NAME.log, its number in
# $launched.
launch() {
    local log="$work/$1.log"
    shift
    setsid "$@" </dev/null >"$log" 2>&1 &
    launched=$!
    processes+=("$launched")
    logs[$launched]="$log"
}

state_of() { ps -o stat= -p "$1" || echo "ended"; }
ended() { ! kill -0 "$1" 2>/dev/null; }

# end_process NUMBER: one that was launched.
end_process() {
    kill "$1" 2>/dev/null || true
    wait_until 5 ended "$1" || kill -KILL "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

# set_options [LINE]...: the program's stored options.
set_options() {
    mkdir -p "$XDG_CONFIG_HOME/Kelmoor"
    printf '%s\n' '[Options]' 'ShowSplash=0' "$@" >"$XDG_CONFIG_HOME/Kelmoor/Kelmoor.conf"
}

start_desktop() {
    need_tools Xvfb openbox xdotool
    mkdir -m 700 "$work/runtime"
    export HOME="$work" XDG_DATA_HOME="$work/data" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
    unset QT_QPA_PLATFORM WAYLAND_DISPLAY TABROVA_HOME TABROVA_SOUNDFONT
    set_options
    # The server chooses a free display and tells it on the file.
    launch server Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 3>"$work/display"
    wait_until 20 test -s "$work/display" || give_up "Xvfb did not start: $(tail -n 1 "$work/server.log")"
    DISPLAY=":$(cat "$work/display")"
    export DISPLAY
    # A window that is mapped while the manager starts may stay unmapped for good.
    launch manager openbox --startup "touch $work/managed"
    wait_until 20 test -e "$work/managed" || give_up "openbox did not start: $(tail -n 1 "$work/manager.log")"
}

# No sound device, port or server of this machine is reached, whatever the user has set.
leave_devices_alone() {
    unset PULSE_SINK PULSE_SOURCE PULSE_RUNTIME_PATH PULSE_STATE_PATH PIPEWIRE_REMOTE PIPEWIRE_RUNTIME_DIR
    : >"$work/no-devices"
    export ALSA_CONFIG_PATH="$work/no-devices" PULSE_SERVER="unix:$work/nowhere"
    export JACK_DEFAULT_SERVER="tabrova-$$" JACK_NO_START_SERVER=1 JACK_NO_AUDIO_RESERVATION=1
}

# A MIDI server ($midi_server) and a listener ($listener) that writes what it hears to $work/listener.log. On a busy
# machine no message is lost: the server waits for its clients.
start_midi_server() {
    need_tools jackd jack_midi_dump jack_lsp
    launch jack jackd -r -S -t 10000 -d dummy -r 48000 -p 1024
    midi_server=$launched
    wait_until 20 jack_lsp || give_up "jackd does not answer: $(tail -n 1 "$work/jack.log")"
    launch listener stdbuf -oL jack_midi_dump ear
    listener=$launched
    wait_until 20 listens || give_up "jack_midi_dump does not answer: $(tail -n 1 "$work/listener.log")"
}
# At an interrupt it takes its leave of the server.
end_listener() {
    kill -INT "$listener"
    wait_until 10 ended "$listener" || give_up "jack_midi_dump does not end"
}
listens() { jack_lsp | grep -qx 'ear:input'; }
# Is the program?
connected() { jack_lsp -c | sed -n '/^ear:input$/,/^[^ ]/p' | grep -q '^ .*Tabrova'; }

# sees NAME: a visible window whose title is NAME (a pattern); its number in $window. Asked anew each time, since
# waiting inside one question may miss a window while another one vanishes.
sees() {
    window="$(timeout 10 xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1 || true)"
    [ -n "$window" ]
}

is_active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ] && [ "$(xdotool getwindowfocus)" = "$1" ]; }

# activate WINDOW: the keys go there.
activate() {
    timeout 10 xdotool windowactivate "$1" 2>/dev/null || true
    wait_until 10 is_active "$1" || give_up "the window $1 does not come to the front"
    sleep 0.3
}

titles() {
    local each
    for each in $(xdotool search --onlyvisible --name '..*'); do
        echo -n "'$(xdotool getwindowname "$each")' "
    done
}

# open_window NAME: waits for it and brings it to the front; its number in $window.
open_window() {
    wait_until 30 sees "$1" ||
        give_up "no window '$1' in time but $(titles); what was started last: $(state_of "$launched")"
    activate "$window"
}

send_keys() { timeout 20 xdotool key --delay 40 --clearmodifiers "$@"; }

# save_as FILE: the keys go to the program's window; it shows the dialog for a document that has no file yet.
save_as() {
    send_keys ctrl+s
    open_window 'Save'
    xdotool type --delay 20 "$1"
    sleep 0.3
    send_keys Return
    wait_until 10 test -s "$1" || true
}

# leave WINDOW: the main window; it always asks whether to save.
leave() {
    activate "$1"
    send_keys ctrl+q
    open_window '^Tabrova for Windows$'
    send_keys alt+n
}

exits_normally() {
    local code=0
    wait_until 15 ended "$1" || { echo "still running after 15 seconds"; return 1; }
    wait "$1" || code=$?
    echo "exit code $code"
    [ "$code" -eq 0 ] || { tail -n 40 "${logs[$1]}"; return 1; }
}
