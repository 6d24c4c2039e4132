# Installs the runtime for other projects: find_package(Tetrad) gives Tetrad::Runtime. The headers have
# the same paths as in the tree: <tetrad/tetrad.h>, <tetrad/app/windows.h>.

include(CMakePackageConfigHelpers)

# Called once every layer is defined.
#   tetrad_install_runtime(tetrad_runtime tetrad_strings ...)
function(tetrad_install_runtime)
    set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Tetrad")
    foreach(target IN LISTS ARGN)
        string(REGEX REPLACE "^tetrad_" "" name ${target})
        set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    endforeach()
    set_target_properties(tetrad_runtime PROPERTIES EXPORT_NAME Runtime)

    install(TARGETS ${ARGN} EXPORT TetradTargets
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(EXPORT TetradTargets NAMESPACE Tetrad::
        DESTINATION "${config_folder}" COMPONENT development)

    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/TetradConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/TetradConfig.cmake" INSTALL_DESTINATION "${config_folder}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/TetradConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES
        "${PROJECT_BINARY_DIR}/TetradConfig.cmake"
        "${PROJECT_BINARY_DIR}/TetradConfigVersion.cmake"
        DESTINATION "${config_folder}" COMPONENT development)
endfunction()
