# shellcheck shell=bash
# The files that the checks read. To be sourced, not run.
#
#   files PATTERN...      files of the repository (committed or about to be) that match, one a line
files()
{
    git ls-files --cached --others --exclude-standard -- "$@" | sort -u | while read -r name; do
        [ -f "$name" ] && printf '%s\n' "$name"
    done
}

# Prints what it reads; fails with the advice given when there was anything.
report()
{
    local found
    found=$(cat)
    [ -z "$found" ] && return 0
    printf '%s\n' "$found" "$1"
    return 1
}
