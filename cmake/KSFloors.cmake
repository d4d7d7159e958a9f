# A floor is a static library that sees only its own headers and those of the floors it names. Headers stand
# beside their sources; each floor gets an include directory of its own in the build tree, which holds one link
# to its folder, so including a header of a floor that is not named fails to compile.
#
#   ks_add_floor(NAME vcl_classes FOLDER vcl/classes DEPENDS vcl_system)
#
# FOLDER is relative to src/; all .cpp files directly in it belong to the floor unless SOURCES lists them.
function(ks_add_floor)
    cmake_parse_arguments(FLOOR "" "NAME;FOLDER" "DEPENDS;SOURCES;LINK" ${ARGN})
    set(folder "${PROJECT_SOURCE_DIR}/src/${FLOOR_FOLDER}")
    set(includes "${PROJECT_BINARY_DIR}/include/${FLOOR_NAME}")
    get_filename_component(parent "${includes}/${FLOOR_FOLDER}" DIRECTORY)
    file(MAKE_DIRECTORY "${parent}")
    if(NOT EXISTS "${includes}/${FLOOR_FOLDER}")
        file(CREATE_LINK "${folder}" "${includes}/${FLOOR_FOLDER}" SYMBOLIC)
    endif()
    if(NOT FLOOR_SOURCES)
        file(GLOB FLOOR_SOURCES CONFIGURE_DEPENDS "${folder}/*.cpp")
    endif()
    if(NOT FLOOR_SOURCES)
        add_library(${FLOOR_NAME} INTERFACE)
        target_link_libraries(${FLOOR_NAME} INTERFACE ${FLOOR_DEPENDS})
        return()
    endif()
    add_library(${FLOOR_NAME} STATIC ${FLOOR_SOURCES})
    target_include_directories(${FLOOR_NAME} PUBLIC "$<BUILD_INTERFACE:${includes}>")
    target_link_libraries(${FLOOR_NAME} PUBLIC ${FLOOR_DEPENDS} ${FLOOR_LINK} PRIVATE ks_warnings)
    set_target_properties(${FLOOR_NAME} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()

# A GoogleTest program from the .cpp files of a folder under tests/, registered test by test in CTest.
#
#   ks_add_test(NAME classes_test FOLDER vcl/classes LINK vcl_classes)
function(ks_add_test)
    cmake_parse_arguments(TEST "" "NAME;FOLDER" "LINK;SOURCES;ENVIRONMENT" ${ARGN})
    if(NOT TEST_SOURCES)
        file(GLOB TEST_SOURCES CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/${TEST_FOLDER}/*.cpp")
    endif()
    add_executable(${TEST_NAME} ${TEST_SOURCES})
    target_include_directories(${TEST_NAME} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${TEST_NAME} PRIVATE ${TEST_LINK} ks_warnings GTest::gmock GTest::gtest_main)
    target_compile_definitions(${TEST_NAME} PRIVATE KS_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    gtest_discover_tests(${TEST_NAME} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300
                         ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${TEST_ENVIRONMENT}")
endfunction()
