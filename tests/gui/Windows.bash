# What scripts that press keys in the real program share. A key is pressed only once a state shows that the program takes it, and
# what it does is waited for, so that a slow machine changes nothing. The caller sets `scratch` and `program`.

pid=
patience=30 # seconds that a state may take to come

fail() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    cat "$scratch/log" >&2 || true
    exit 1
}

# start [ARGUMENT...]: starts the program with a home and a working folder of its own.
start() {
    (cd "$scratch" && HOME=$scratch XDG_STATE_HOME=$scratch/state exec "$program" "$@") >"$scratch/log" 2>&1 &
    pid=$!
}

# awaited COMMAND...: waits until the command succeeds.
awaited() {
    local end=$((SECONDS + patience))
    until "$@"; do
        if ((SECONDS >= end)); then return 1; fi
        sleep 0.05
    done
}

# The ids of the program's visible windows, those with a title when one is given.
windows() { xdotool search --all --onlyvisible --pid "$pid" --name "${1:+^$1\$}" 2>/dev/null || true; }
has_window() { [[ -n $(windows "$1") ]]; }

# The window that gets the keys: the window manager calls a window active before it has them.
focus_name() { xdotool getwindowfocus getwindowname 2>/dev/null || true; }
has_keys() { [[ $(focus_name) == "$1" && $(xdotool getactivewindow 2>/dev/null) == "$(xdotool getwindowfocus 2>/dev/null)" ]]; }
await_keys() { awaited has_keys "$1" || fail "the keys go to \"$(focus_name)\", not to \"$1\""; }

# A message box has the title of the main window, but it is a dialog.
kind_of() { xprop -id "$1" _NET_WM_WINDOW_TYPE 2>/dev/null || true; }
box_has_keys() { has_keys "$1" && [[ $(kind_of "$(xdotool getwindowfocus)") == *_DIALOG* ]]; }
await_box() { awaited box_has_keys "$1" || fail "the keys go to \"$(focus_name)\", not to a box \"$1\""; }

has_menu() {
    local id
    for id in $(windows); do
        if [[ $(kind_of "$id") == *_MENU* ]]; then return 0; fi
    done
    return 1
}

# menu KEY ITEM_KEY: opens a menu of the window that has the keys, and chooses an item of it.
menu() {
    xdotool key "$1"
    awaited has_menu || fail "$1 opens no menu"
    xdotool key "$2"
}
