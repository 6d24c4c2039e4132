# The icon theme's tree, made from icon.svg: hicolor/48x48/apps/ID.png and so on. In share/icons beside the program, where
# it looks, so that it has its icon before it is installed too.
set(icon_theme "${PROJECT_BINARY_DIR}/share/icons/hicolor")
set(icon_sizes 16 22 24 32 48 64 128 256)

configure_file(icon.svg "${icon_theme}/scalable/apps/${TETRAD_APP_ID}.svg" COPYONLY)
find_program(TETRAD_RSVG_CONVERT rsvg-convert)
if(NOT TETRAD_RSVG_CONVERT)
    message(STATUS "rsvg-convert not found: the icon is there as SVG only")
    set(icon_sizes)
endif()

set(icon_files)
foreach(size IN LISTS icon_sizes)
    set(folder "${icon_theme}/${size}x${size}/apps")
    file(MAKE_DIRECTORY "${folder}")
    set(file "${folder}/${TETRAD_APP_ID}.png")
    add_custom_command(OUTPUT "${file}"
        COMMAND "${TETRAD_RSVG_CONVERT}" --width=${size} --height=${size}
            --output "${file}" "${CMAKE_CURRENT_SOURCE_DIR}/icon.svg"
        DEPENDS icon.svg
        VERBATIM)
    list(APPEND icon_files "${file}")
endforeach()
add_custom_target(tetrad_icons DEPENDS ${icon_files})
add_dependencies(tetrad_game tetrad_icons)
