# shellcheck shell=bash disable=SC2034,SC2086,SC2154
# Builds and runs the fuzz targets. To be sourced, not run.

#   fuzz_all SECONDS      each target for so long; what it finds is left in build/fuzz/found
fuzz_all()
{
    local seconds=$1 found="$ks_root/build/fuzz/found" target name program failed=0 count=0
    build_preset fuzz
    mkdir -p "$found"
    while read -r target; do
        [ -n "$target" ] || continue
        name=${target#fuzz_}
        program=$(find "$ks_root/build/fuzz" -type f -name "$target" -perm -u+x -print -quit)
        mkdir -p "$ks_root/build/fuzz/corpus/$name"
        count=$((count + 1))
        echo "$name: $seconds seconds"
        if ! QT_QPA_PLATFORM=offscreen "$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 \
            -print_final_stats=1 -artifact_prefix="$found/$name-" "$ks_root/build/fuzz/corpus/$name" \
            "$ks_root/tests/fuzz/corpus/$name" >"$ks_root/build/fuzz/$name.log" 2>&1; then
            failed=$((failed + 1))
            tail -n 40 "$ks_root/build/fuzz/$name.log" >&2
        fi
        sed -n 's/^stat::number_of_executed_units: */  inputs tried: /p' "$ks_root/build/fuzz/$name.log"
    done <"$ks_root/build/fuzz/fuzzers.txt"
    if [ "$count" = 0 ]; then
        echo "./test: there are no fuzz targets" >&2
        return 1
    fi
    echo
    echo "$count targets, $failed failed"
    [ "$failed" = 0 ]
}
