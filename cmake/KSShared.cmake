# The two shared libraries that are shipped, put together from the objects of the floors: vcl (all floors called
# vcl_..., without the recording platform, which is for tests) and KSSuite (the controls and the package's entry).
# A library exists as soon as its floors have sources. Programs that load packages link these, never the floors:
# with both, each class would exist twice.
function(ks_shared_library NAME)
    cmake_parse_arguments(LIB "" "" "FLOORS;PUBLIC;PRIVATE" ${ARGN})
    set(objects "")
    foreach(floor IN LISTS LIB_FLOORS)
        list(APPEND objects "$<TARGET_OBJECTS:${floor}>")
    endforeach()
    add_library(${NAME} SHARED ${objects})
    add_library(KSSuite::${NAME} ALIAS ${NAME})
    target_link_libraries(${NAME} PUBLIC ${LIB_PUBLIC} PRIVATE ${LIB_PRIVATE})
    target_include_directories(${NAME} INTERFACE "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>"
                                                 "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/kssuite>")
    if(NOT KS_SANITIZE)
        target_link_options(${NAME} PRIVATE -Wl,-z,defs)
    endif()
    target_compile_features(${NAME} PUBLIC cxx_std_20)
    set_target_properties(${NAME} PROPERTIES
        LINKER_LANGUAGE CXX
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib"
        # A package is looked for beside the library that loads it.
        BUILD_RPATH "\$ORIGIN" INSTALL_RPATH "\$ORIGIN")
endfunction()

get_property(ks_floors GLOBAL PROPERTY KS_FLOORS)
set(ks_vcl_floors ${ks_floors})
list(FILTER ks_vcl_floors INCLUDE REGEX "^vcl_")
list(REMOVE_ITEM ks_vcl_floors vcl_record)
set(ks_package_floors ${ks_floors})
list(FILTER ks_package_floors EXCLUDE REGEX "^vcl_")

if("vcl_platform_qt" IN_LIST ks_vcl_floors AND "vcl_forms" IN_LIST ks_vcl_floors)
    ks_shared_library(vcl FLOORS ${ks_vcl_floors} PRIVATE Qt6::Widgets Qt6::PrintSupport Qt6::Svg)
    if(EXISTS "${PROJECT_SOURCE_DIR}/src/package/Package.cpp")
        ks_shared_library(KSSuite FLOORS ${ks_package_floors} PUBLIC vcl)
    endif()
endif()
