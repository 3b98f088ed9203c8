# shellcheck shell=bash
# To be sourced. quietly LOG COMMAND... runs a command with its output in build/logs/LOG.log. Only if the
# command fails, it shows the end of that output and what compilers and tests found wrong above it. The
# command has nothing to read: there are programs that fail where standard input is closed.
quietly() {
    local log=build/logs/$1.log status=0
    shift
    mkdir -p build/logs
    "$@" </dev/null >"$log" 2>&1 || status=$?
    if [[ $status -ne 0 ]]; then
        tail -n 100 "$log" >&2
        grep -nE -A 8 ': Failure\s*$|: error: ' "$log" | tail -n 60 >&2 || true
        echo "failed ($status): $*; all that it printed is in $log" >&2
    fi
    return "$status"
}
