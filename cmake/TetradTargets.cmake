# One place for what every target of the project has in common.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

if(TETRAD_SANITIZE)
    add_compile_options(-fsanitize=${TETRAD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TETRAD_SANITIZE})
endif()

# Warnings, definitions and the precompiled header of the project's own code.
function(tetrad_target_defaults target)
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
    if(TARGET tetrad_precompiled AND NOT target STREQUAL "tetrad_precompiled")
        target_precompile_headers(${target} REUSE_FROM tetrad_precompiled)
        # Executables would be compiled with -fPIE, for which the header is another one.
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
        if(TETRAD_WERROR)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    elseif(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
    endif()
endfunction()

# One precompiled header for all of that code takes more than half off the time to compile it. Clang goes without: a
# precompiled header hides a missing include, and one compiler has to find it.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    file(CONFIGURE OUTPUT precompiled.cpp CONTENT "// Only the header counts.\n")
    add_library(tetrad_precompiled OBJECT "${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp")
    set_target_properties(tetrad_precompiled PROPERTIES AUTOMOC OFF POSITION_INDEPENDENT_CODE ON)
    # Only the folders of Qt6::Widgets: a definition of its own would keep the layers that link Qt6::Core alone from using this.
    target_include_directories(tetrad_precompiled SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Gui,INTERFACE_INCLUDE_DIRECTORIES>
        $<TARGET_PROPERTY:Qt6::Widgets,INTERFACE_INCLUDE_DIRECTORIES>)
    target_link_libraries(tetrad_precompiled PRIVATE Qt6::Core)
    tetrad_target_defaults(tetrad_precompiled)
    target_precompile_headers(tetrad_precompiled PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled.h")
endif()

# A layer of the runtime: a static library. Its public headers are in include/, as in <tetrad/app/windows.h>; private ones
# stay beside their sources and are included from the repository's root, as in "runtime/app/menus/edit_actions.h".
#   tetrad_add_layer(tetrad_app SOURCES a.cpp b.cpp LINKS tetrad_strings Qt6::Widgets)
# Everything in LINKS is public: a layer's headers name the types of the layers below.
function(tetrad_add_layer target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(${target} STATIC ${arg_SOURCES})
    tetrad_target_defaults(${target})
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>")
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(${target} PUBLIC ${arg_LINKS})
    set_target_properties(${target} PROPERTIES AUTOMOC ON POSITION_INDEPENDENT_CODE ON)
endfunction()
