# Options and the flags every target is compiled with.

option(KS_BUILD_TESTS "Build the tests" ON)
option(KS_BUILD_BENCH "Build the benchmarks" OFF)
option(KS_FUZZ "Build the fuzz targets (needs Clang)" OFF)
option(KS_PCH "Precompile the headers of GoogleTest and Qt where many files include them" ON)
set(KS_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them: address,undefined or thread")

find_program(KS_CCACHE ccache)
if(KS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these allowances ccache refuses to keep what was compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime "${KS_CCACHE}")
    if(KS_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    endif()
endif()

add_library(ks_warnings INTERFACE)
target_compile_options(ks_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Wold-style-cast -Woverloaded-virtual -Werror)
# GCC 12 warns of overlapping copies inside its own std::string when optimising (its bug 105651).
target_compile_options(ks_warnings INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)

# Exact halves decide layout and drawing; a fused or extended intermediate would move them.
add_compile_options(-ffp-contract=off)

if(KS_SANITIZE)
    add_compile_options(-fsanitize=${KS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KS_SANITIZE})
    # The code that GCC adds for the checks hides initialisations from this warning, the standard library's too.
    target_compile_options(ks_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(KS_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
