# A GoogleTest program from the .cpp files of a folder under tests/, registered test by test in CTest.
#
#   ks_add_test(NAME classes_test FOLDER vcl/classes LINK vcl_classes)
#
# THREADS marks a program that starts threads: `./test --sanitize` also runs it under the thread sanitizer, so
# it must not need a toolkit.
function(ks_add_test)
    cmake_parse_arguments(TEST "THREADS" "NAME;FOLDER" "LINK;SOURCES;ENVIRONMENT" ${ARGN})
    if(NOT TEST_SOURCES)
        file(GLOB TEST_SOURCES CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/${TEST_FOLDER}/*.cpp")
    endif()
    if(NOT TEST_SOURCES)
        message(WARNING "tests/${TEST_FOLDER} has no sources; ${TEST_NAME} is left out")
        return()
    endif()
    add_executable(${TEST_NAME} ${TEST_SOURCES})
    target_include_directories(${TEST_NAME} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${TEST_NAME} PRIVATE ${TEST_LINK} ks_test_support ks_warnings GTest::gmock GTest::gtest_main)
    target_compile_definitions(${TEST_NAME} PRIVATE KS_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    if(KS_PCH)
        # Programs that also use Qt compile with other definitions; they then read the header as text.
        set_target_properties(${TEST_NAME} PROPERTIES PCH_WARN_INVALID OFF)
        target_precompile_headers(${TEST_NAME} REUSE_FROM ks_test_support)
    endif()
    set(labels "")
    if(TEST_THREADS)
        set(labels LABELS threads)
        set_property(GLOBAL APPEND PROPERTY KS_THREADED_TESTS ${TEST_NAME})
    endif()
    gtest_discover_tests(${TEST_NAME} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300 ${labels}
                         ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${TEST_ENVIRONMENT}")
endfunction()

# A fuzz target: one source with LLVMFuzzerTestOneInput. With KS_FUZZ it is a libFuzzer program; otherwise a test
# that runs it once over each file of tests/fuzz/corpus/NAME, where inputs that once failed are kept.
#
#   ks_add_fuzz(NAME binary_form SOURCES BinaryForm.cpp LINK vcl_streaming)
function(ks_add_fuzz)
    cmake_parse_arguments(FUZZ "" "NAME" "SOURCES;LINK" ${ARGN})
    set(target "fuzz_${FUZZ_NAME}")
    set(corpus "${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${FUZZ_NAME}")
    add_executable(${target} ${FUZZ_SOURCES})
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${target} PRIVATE ${FUZZ_LINK} ks_warnings)
    if(KS_FUZZ)
        target_link_options(${target} PRIVATE -fsanitize=fuzzer)
        set_property(GLOBAL APPEND PROPERTY KS_FUZZ_TARGETS ${target})
    else()
        target_sources(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/fuzz/ReplayMain.cpp")
        add_test(NAME "Fuzz.${FUZZ_NAME}SurvivesItsCorpus" COMMAND ${target} "${corpus}")
        set_tests_properties("Fuzz.${FUZZ_NAME}SurvivesItsCorpus"
                             PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    endif()
endfunction()

# Targets that the scripts build when they want only these programs.
function(ks_add_test_groups)
    get_property(threaded GLOBAL PROPERTY KS_THREADED_TESTS)
    get_property(fuzzers GLOBAL PROPERTY KS_FUZZ_TARGETS)
    add_custom_target(ks_threaded_tests DEPENDS ${threaded})
    add_custom_target(ks_fuzzers DEPENDS ${fuzzers})
    list(JOIN fuzzers "\n" names)
    file(WRITE "${PROJECT_BINARY_DIR}/fuzzers.txt" "${names}\n")
    list(JOIN threaded "\n" names)
    file(WRITE "${PROJECT_BINARY_DIR}/threaded.txt" "${names}\n")
endfunction()
