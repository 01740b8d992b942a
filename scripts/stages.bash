# Runs stages side by side and says how far they are. A script sources this, declares its stages and runs them:
#
#   stage NAME LANE TEXT [NEEDED STAGE...]     the function of that name, with _ for -, does the work
#   run_stages FOLDER [STAGE...]               these and the stages that they need; no stage: all
#
# A stage begins when the stages that it needs are well and no other of its lane runs. Its output goes to FOLDER/NAME.log, and
# what it writes to descriptor 3 is shown at once. The times of a run are kept in FOLDER/times: they are the next run's estimate.
# `stages_failed` says whether one failed.

stage_names=()
declare -A stage_lane stage_text stage_needs stage_state stage_seconds stage_last stage_start stage_of_pid lane_busy

stage() { # NAME LANE TEXT [NEEDED...]
    local name=$1
    stage_names+=("$name")
    stage_lane[$name]=$2
    stage_text[$name]=$3
    shift 3
    stage_needs[$name]=$*
}

is_stage() { [[ -n ${stage_lane[$1]:-} ]]; }

list_stages() {
    local name
    for name in "${stage_names[@]}"; do printf '  %-16s %s\n' "$name" "${stage_text[$name]}"; done
}

in_minutes() { printf '%d:%02d' $(($1 / 60)) $(($1 % 60)); }

# want STAGE...: these stages and all that they need are to be run.
want() {
    local name
    for name in "$@"; do
        if [[ -n ${stage_state[$name]:-} ]]; then continue; fi
        stage_state[$name]=waiting
        # shellcheck disable=SC2086 # the names of stages are words
        want ${stage_needs[$name]}
    done
}

# needs_are STATE STAGE: whether each stage that this one needs is in the state.
needs_are() { # STATE STAGE
    local need
    for need in ${stage_needs[$2]}; do
        if [[ ${stage_state[$need]} != "$1" ]]; then return 1; fi
    done
}

needs_broken_stage() { # STAGE
    local need
    for need in ${stage_needs[$1]}; do
        if [[ ${stage_state[$need]} == @(FAILED|left) ]]; then return 0; fi
    done
    return 1
}

begin_stage() { # STAGE
    local name=$1
    stage_state[$name]=running
    stage_start[$name]=$SECONDS
    lane_busy[${stage_lane[$name]}]=$name
    set -m # a group of processes of its own, which can be ended as a whole
    (
        set -e +m
        # Tests wait for programs to answer; builds only take the time that is left.
        if [[ ${stage_lane[$name]} == build ]]; then renice -n 10 "$BASHPID" >/dev/null || true; fi
        "${name//-/_}"
    ) >"$stage_folder/$name.log" 2>&1 </dev/null &
    set +m
    stage_of_pid[$!]=$name
}

# Begins what can begin now.
begin_stages() {
    local name
    for name in "${stage_names[@]}"; do
        if [[ ${stage_state[$name]:-} != waiting ]]; then continue; fi
        if needs_broken_stage "$name"; then
            stage_state[$name]=left
            say_stage "$name"
        elif [[ -z ${lane_busy[${stage_lane[$name]}]:-} ]] && needs_are ok "$name"; then
            begin_stage "$name"
        fi
    done
}

# Waits for the next stage that ends, and begins those that waited for it.
end_stage() {
    local pid name status=0
    wait -n -p pid "${!stage_of_pid[@]}" || status=$?
    name=${stage_of_pid[$pid]}
    unset "stage_of_pid[$pid]"
    lane_busy[${stage_lane[$name]}]=
    stage_seconds[$name]=$((SECONDS - stage_start[$name]))
    if ((status == 0)); then stage_state[$name]=ok; else stage_state[$name]=FAILED; fi
    begin_stages
    say_stage "$name"
    if ((status != 0)); then say_failure "$name"; fi
}

# One line for a stage that is over: the time since the start, its own time and that of the last run.
say_stage() { # STAGE
    local name=$1 own=- last=-
    if [[ -n ${stage_seconds[$name]:-} ]]; then own=$(in_minutes "${stage_seconds[$name]}"); fi
    if [[ -n ${stage_last[$name]:-} ]]; then last=$(in_minutes "${stage_last[$name]}"); fi
    printf '%6s  %-6s %-16s %6s (last %5s)  %s\n' "$(in_minutes "$SECONDS")" "${stage_state[$name]}" "$name" "$own" "$last" \
        "$(say_running)"
}

# What runs now, each with the time that it still took in the last run.
say_running() {
    local pid name rest
    for pid in "${!stage_of_pid[@]}"; do
        name=${stage_of_pid[$pid]}
        printf ' %s' "$name"
        rest=$((${stage_last[$name]:-0} - SECONDS + stage_start[$name]))
        if ((rest > 0)); then printf ' %s' "$(in_minutes "$rest")"; fi
    done
}

say_failure() { # STAGE
    local log=$stage_folder/$1.log
    printf '        the end of %s:\n' "${log#"$PWD/"}"
    grep -v '^\[[0-9]*/[0-9]*\] ' "$log" | tail -n 40 | sed 's/^/        /'
    printf '        again: ./test %s\n' "$1"
}

read_last_times() {
    local name seconds
    if [[ ! -e $stage_folder/times ]]; then return; fi
    while read -r name seconds; do stage_last[$name]=$seconds; done <"$stage_folder/times"
}

# The times of this run; of a stage that was not run or failed, the time before.
keep_times() {
    local name
    for name in "${stage_names[@]}"; do
        if [[ ${stage_state[$name]:-} == ok ]]; then stage_last[$name]=${stage_seconds[$name]}; fi
    done
    if [[ ${stages_whole:-} == true ]]; then stage_last[all]=$SECONDS; fi
    for name in "${!stage_last[@]}"; do printf '%s %s\n' "$name" "${stage_last[$name]}"; done >"$stage_folder/times"
}

# Ends what still runs, with all its processes.
end_all_stages() {
    local pid
    for pid in "${!stage_of_pid[@]}"; do kill -- "-$pid" 2>/dev/null || true; done
}

run_stages() { # FOLDER [STAGE...]
    local name
    stage_folder=$1
    shift
    mkdir -p "$stage_folder"
    exec 3>&1
    read_last_times
    stages_whole=false
    if (($# == 0)); then
        stages_whole=true
        want "${stage_names[@]}"
        if [[ -n ${stage_last[all]:-} ]]; then printf 'The last run took %s.\n' "$(in_minutes "${stage_last[all]}")"; fi
    fi
    want "$@"
    begin_stages
    while ((${#stage_of_pid[@]} > 0)); do
        end_stage
    done
    keep_times
    stages_failed=()
    for name in "${stage_names[@]}"; do
        if [[ ${stage_state[$name]:-} == @(FAILED|left) ]]; then stages_failed+=("$name"); fi
    done
}
