# Shared by the scripts of this folder: source it, define checks as functions, and end with run_checks NAME...

# The checks read the output of tools, so its language must not depend on the caller.
export LC_ALL=C.UTF-8
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME XDG_CURRENT_DESKTOP LSADVISOR_WORKDIR DISPLAY WAYLAND_DISPLAY

scratch=$(mktemp -d "${TMPDIR:-/tmp}/lodestar-packaging.XXXXXX")
trap 'rm -rf -- "$scratch"' EXIT
trap 'exit 143' HUP INT TERM

faults=0
fault() {
    printf 'FAULT: %s\n' "$*"
    faults=$((faults + 1))
}

# need TOOL...: ends the script if one is missing.
need() {
    local tool
    for tool; do
        command -v "$tool" >/dev/null || {
            printf '%s is not installed; scripts/install-packages test package package-test brings it\n' "$tool"
            exit 1
        }
    done
}

# quiet COMMAND...: runs a checker that must end with status 0 and print nothing.
quiet() {
    local output
    output=$("$@" 2>&1) || fault "'$*' ended with status $?"
    if [[ -n $output ]]; then fault "'$*' said: $output"; fi
}

# same WHAT EXPECTED ACTUAL
same() {
    if [[ $2 != "$3" ]]; then
        fault "$1"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") | sed 's/^</  expected: /; s/^>/  actual:   /' | grep '^  ' || true
    fi
}

# run_checks NAME...: runs all of these functions. The status is 1 if one finds a fault.
run_checks() {
    local name before
    for name; do
        before=$faults
        "$name"
        if ((faults == before)); then printf 'ok      %s\n' "$name"; else printf 'FAILED  %s\n' "$name"; fi
    done
    ((faults == 0))
}
