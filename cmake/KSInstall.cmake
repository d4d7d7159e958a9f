# What `cmake --install` writes: the shared libraries, their public headers, the CMake package and the pkg-config
# files. Headers of the platforms stay behind: programs reach them through vcl/qt.
if(NOT TARGET vcl)
    return()
endif()
include(CMakePackageConfigHelpers)

set(ks_headers "${CMAKE_INSTALL_INCLUDEDIR}/kssuite")
set(ks_package "${CMAKE_INSTALL_LIBDIR}/cmake/KSSuite")
set(ks_libraries vcl)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/vcl" DESTINATION "${ks_headers}" FILES_MATCHING PATTERN "*.h"
        PATTERN "platform/qt" EXCLUDE PATTERN "platform/record" EXCLUDE)
if(TARGET KSSuite)
    list(APPEND ks_libraries KSSuite)
    file(GLOB ks_controls "${PROJECT_SOURCE_DIR}/src/KS*")
    install(DIRECTORY ${ks_controls} DESTINATION "${ks_headers}" FILES_MATCHING PATTERN "*.h")
endif()

install(TARGETS ${ks_libraries} EXPORT KSSuiteTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT KSSuiteTargets NAMESPACE KSSuite:: DESTINATION "${ks_package}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/KSSuiteConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/KSSuiteConfig.cmake" INSTALL_DESTINATION "${ks_package}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/KSSuiteConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/KSSuiteConfig.cmake" "${PROJECT_BINARY_DIR}/KSSuiteConfigVersion.cmake"
        DESTINATION "${ks_package}")

# Relative, so that the tree may be installed under another prefix or moved.
file(RELATIVE_PATH ks_up_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
foreach(library IN LISTS ks_libraries)
    string(TOLOWER "${library}" name)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DATADIR}/licenses/kssuite")
