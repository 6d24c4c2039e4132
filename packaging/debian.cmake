# The Debian package, made by packaging/deb: the game alone. The runtime's headers and static libraries are
# for building, and are installed from the source.
find_program(TETRAD_GZIP gzip)
if(NOT TETRAD_GZIP)
    return()
endif()

# Sorts before any package of Debian's own.
set(TETRAD_DEBIAN_REVISION 0upstream1)
set(changelog "${CMAKE_CURRENT_BINARY_DIR}/debian/changelog.Debian")
configure_file(debian/changelog.in "${changelog}" @ONLY)
configure_file(debian/copyright.in "${CMAKE_CURRENT_BINARY_DIR}/debian/copyright" @ONLY)
foreach(file "${changelog}" "${manual_page}")
    add_custom_command(OUTPUT "${file}.gz"
        COMMAND "${TETRAD_GZIP}" -9 --no-name --keep --force "${file}"
        DEPENDS "${file}"
        VERBATIM)
endforeach()
add_custom_target(tetrad_debian ALL DEPENDS "${changelog}.gz" "${manual_page}.gz")
install(FILES "${changelog}.gz" "${CMAKE_CURRENT_BINARY_DIR}/debian/copyright"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${manual_page}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man6" COMPONENT debian EXCLUDE_FROM_ALL)

# Debian's folder for games; only the package uses it, so that it can be made from any build folder.
file(CONFIGURE OUTPUT debian/games.cmake CONTENT [[
file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/usr/@CMAKE_INSTALL_BINDIR@")
cmake_path(REPLACE_FILENAME programs games OUTPUT_VARIABLE games)
file(RENAME "${programs}" "${games}")
]] @ONLY)

set(CPACK_PACKAGE_NAME "${TETRAD_EXECUTABLE}")
set(CPACK_PACKAGE_VENDOR "${TETRAD_AUTHORS}")
set(CPACK_PACKAGE_CONTACT "${TETRAD_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/debian/games.cmake")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL game debian)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${TETRAD_DEBIAN_REVISION})
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-noto-color-emoji, hicolor-icon-theme, qt6-wayland")
# The summary is the project's description.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "The player is shown four numbers from 1 to 9 and types an expression that
uses each of them once and equals 24. There are 96 puzzles in three levels
of difficulty; none comes back before all have been seen. The game is played
with the keyboard and can be followed with a screen reader.")
include(CPack)
