# shellcheck shell=bash disable=SC2034,SC2086,SC2154
# Runs CTest and adds up its counts. To be sourced, not run.

ks_tests=0
ks_failed=0
ks_broken=no

# An attribute of the first <testsuite> of a JUnit file.
ks_count()
{
    sed -n "s/.*[[:space:]]$1=\"\([0-9]*\)\".*/\1/p" "$2" | head -n 1
}

#   run_ctest FOLDER [CTEST-ARGUMENT...]      the tests built in build/FOLDER; that none fits is no error here,
#                                             report_counts looks at the sum
run_ctest()
{
    local folder="$ks_root/build/$1" results
    shift
    results="$folder/results.xml"
    rm -f "$results"
    # Each test program has a process of its own; two at a time, as many as the smallest machine has processors.
    ctest --test-dir "$folder" -j2 --output-on-failure --no-tests=ignore --progress \
        --output-junit "$results" "$@" || ks_broken=yes
    if [ -f "$results" ]; then
        # The attributes stand on lines of their own before the first <testcase>.
        sed '/<testcase/,$d' "$results" | tr -s '\n\t' '  ' >"$results.head"
        ks_tests=$((ks_tests + $(ks_count tests "$results.head")))
        # What did not run has not passed.
        ks_failed=$((ks_failed + $(ks_count failures "$results.head") + $(ks_count skipped "$results.head")))
    fi
}

sanitizer_options()
{
    local suppressions="$ks_root/scripts/suppressions"
    export ASAN_OPTIONS="detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1"
    export LSAN_OPTIONS="suppressions=$suppressions/leaks.txt:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1"
    export TSAN_OPTIONS="suppressions=$suppressions/threads.txt:halt_on_error=1"
}

report_accepted()
{
    if [ -s "$KS_ACCEPT_LOG" ]; then
        echo "Rewritten:"
        sort -u "$KS_ACCEPT_LOG"
    else
        echo "./test: nothing differs from an expected file called $KS_ACCEPT" >&2
    fi
}

# The closing line; the exit status tells whether all is well.
report_counts()
{
    echo
    echo "$ks_tests tests, $ks_failed failed"
    echo "$((ks_tests - ks_failed)) passed, $ks_failed failed"
    [ "$ks_failed" = 0 ] && [ "$ks_tests" -gt 0 ] && [ "$ks_broken" = no ]
}
