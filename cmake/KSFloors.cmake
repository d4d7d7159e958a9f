# A floor is a static library that sees only its own headers and those of the floors it names. Headers stand
# beside their sources; each floor gets an include directory of its own in the build tree, which holds one link
# to its folder, so including a header of a floor that is not named fails to compile.
#
#   ks_add_floor(NAME vcl_classes FOLDER vcl/classes DEPENDS vcl_system)
#
# FOLDER is relative to src/; all .cpp files directly in it belong to the floor unless SOURCES lists them.
# Floors called vcl_... end in the shared library vcl, all others in KSSuite (see KSShared.cmake).
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
        target_include_directories(${FLOOR_NAME} INTERFACE "$<BUILD_INTERFACE:${includes}>")
        target_link_libraries(${FLOOR_NAME} INTERFACE ${FLOOR_DEPENDS})
        return()
    endif()
    add_library(${FLOOR_NAME} STATIC ${FLOOR_SOURCES})
    target_include_directories(${FLOOR_NAME} PUBLIC "$<BUILD_INTERFACE:${includes}>")
    target_link_libraries(${FLOOR_NAME} PUBLIC ${FLOOR_DEPENDS} ${FLOOR_LINK} PRIVATE ks_warnings)
    set_target_properties(${FLOOR_NAME} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    set_property(GLOBAL APPEND PROPERTY KS_FLOORS ${FLOOR_NAME})
endfunction()

# Adds every folder below the current one that has a CMakeLists.txt of its own. EXCLUDE is a regular expression
# on the path relative to the current folder.
function(ks_add_subfolders)
    cmake_parse_arguments(SUB "" "EXCLUDE" "" ${ARGN})
    file(GLOB_RECURSE lists CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "*/CMakeLists.txt")
    if(SUB_EXCLUDE)
        list(FILTER lists EXCLUDE REGEX "${SUB_EXCLUDE}")
    endif()
    foreach(list IN LISTS lists)
        get_filename_component(folder "${list}" DIRECTORY)
        add_subdirectory("${folder}")
    endforeach()
endfunction()
