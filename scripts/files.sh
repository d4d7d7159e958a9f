# shellcheck shell=bash
# The files that the checks read. To be sourced, not run.
#
#   files PATTERN...      files of the repository (committed or about to be) that match, one a line
files()
{
    ks_git ls-files --cached --others --exclude-standard -- "$@" | sort -u | while read -r name; do
        [ -f "$name" ] && printf '%s\n' "$name"
    done
}

# git for this folder, whoever owns it; sources that came without a repository are listed by an empty one.
ks_git()
{
    local empty
    if git -c safe.directory="$PWD" rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git -c safe.directory="$PWD" "$@"
        return
    fi
    empty=$(mktemp -d)
    git init -q --bare "$empty"
    git --git-dir="$empty" --work-tree=. -c core.bare=false "$@"
    rm -rf "$empty"
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
