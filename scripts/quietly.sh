# shellcheck shell=bash
# To be sourced. quietly LOG COMMAND... runs a command with its output in build/logs/LOG.log and
# shows that output only if the command fails.
quietly() {
    local log=build/logs/$1.log status=0
    shift
    mkdir -p build/logs
    "$@" >"$log" 2>&1 || status=$?
    if [[ $status -ne 0 ]]; then
        cat "$log" >&2
        echo "failed ($status): $*" >&2
    fi
    return "$status"
}
