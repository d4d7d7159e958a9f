# shellcheck shell=bash disable=SC2034,SC2086,SC2154
# Configures and builds one of the presets. To be sourced, not run.
#
#   build_preset PRESET [TARGET...]     in build/PRESET's folder, quietly unless something fails
#
# KS_JOBS is the number of compilers at the same time; otherwise one for each processor.

ks_jobs()
{
    echo "${KS_JOBS:-$(nproc)}"
}

build_preset()
{
    local preset=$1 log
    shift
    log="$ks_root/build/$preset.log"
    mkdir -p "$ks_root/build"
    if ! (cd "$ks_root" && cmake --preset "$preset") >"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    if [ -t 1 ]; then
        (cd "$ks_root" && cmake --build --preset "$preset" -j "$(ks_jobs)" "${targets[@]}")
    elif ! (cd "$ks_root" && cmake --build --preset "$preset" -j "$(ks_jobs)" "${targets[@]}") >"$log" 2>&1; then
        grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking|Generating|Automatic)' "$log" >&2
        return 1
    fi
}
