# Options and the flags every target is compiled with.

option(KS_BUILD_TESTS "Build the tests" ON)
option(KS_BUILD_BENCH "Build the benchmarks" OFF)
option(KS_FUZZ "Build the fuzz targets (needs Clang)" OFF)
set(KS_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them: address,undefined or thread")

find_program(KS_CCACHE ccache)
if(KS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KS_CCACHE}")
endif()

add_library(ks_warnings INTERFACE)
target_compile_options(ks_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Wold-style-cast -Woverloaded-virtual -Werror)

# Exact halves decide layout and drawing; a fused or extended intermediate would move them.
add_compile_options(-ffp-contract=off)

if(KS_SANITIZE)
    add_compile_options(-fsanitize=${KS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KS_SANITIZE})
endif()
