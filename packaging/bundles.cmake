# What macOS and Windows read in place of a desktop entry. Neither was ever built: written from their documents.
set_target_properties(tetrad_game PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST "${CMAKE_CURRENT_BINARY_DIR}/Info.plist"
    WIN32_EXECUTABLE ON)

# Info.plist names this file; iconutil, which makes it, comes with the system.
find_program(TETRAD_ICONUTIL iconutil)
if(APPLE AND TETRAD_ICONUTIL AND TETRAD_RSVG_CONVERT)
    set(icns "${CMAKE_CURRENT_BINARY_DIR}/${TETRAD_EXECUTABLE}.icns")
    set(icon_set "${CMAKE_CURRENT_BINARY_DIR}/${TETRAD_EXECUTABLE}.iconset")
    file(MAKE_DIRECTORY "${icon_set}")
    set(copies)
    foreach(size 16 32 128 256)
        list(APPEND copies COMMAND "${CMAKE_COMMAND}" -E copy
            "${icon_theme}/${size}x${size}/apps/${TETRAD_APP_ID}.png" "${icon_set}/icon_${size}x${size}.png")
    endforeach()
    add_custom_command(OUTPUT "${icns}"
        ${copies}
        COMMAND "${TETRAD_ICONUTIL}" --convert icns --output "${icns}" "${icon_set}"
        DEPENDS ${icon_files}
        VERBATIM)
    add_custom_target(tetrad_icns DEPENDS "${icns}")
    add_dependencies(tetrad_game tetrad_icns)
    target_sources(tetrad_game PRIVATE "${icns}")
    set_source_files_properties("${icns}" TARGET_DIRECTORY tetrad_game PROPERTIES
        GENERATED ON
        MACOSX_PACKAGE_LOCATION Resources)
endif()

# The icon and the version that the file manager shows; magick makes an .ico of several PNGs.
if(WIN32)
    enable_language(RC)
    find_program(TETRAD_MAGICK magick)
    set(TETRAD_ICON_LINE "")
    if(TETRAD_MAGICK AND TETRAD_RSVG_CONVERT)
        set(ico "${CMAKE_CURRENT_BINARY_DIR}/${TETRAD_EXECUTABLE}.ico")
        add_custom_command(OUTPUT "${ico}"
            COMMAND "${TETRAD_MAGICK}" ${icon_files} "${ico}"
            DEPENDS ${icon_files}
            VERBATIM)
        add_custom_target(tetrad_ico DEPENDS "${ico}")
        add_dependencies(tetrad_game tetrad_ico)
        set(TETRAD_ICON_LINE "1 ICON \"${ico}\"")
    endif()
    configure_file(windows.rc.in "${CMAKE_CURRENT_BINARY_DIR}/windows.rc" @ONLY)
    target_sources(tetrad_game PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/windows.rc")
endif()
