# Settings that every target of the tree shares, and the functions that make targets.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}" "$ORIGIN")

find_package(Qt5 5.15 REQUIRED COMPONENTS Core LinguistTools Widgets)

find_program(PLIB_CCACHE ccache)
if(PLIB_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${PLIB_CCACHE})
endif()
if(PLIB_TIDY)
    find_program(PLIB_CLANG_TIDY clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY ${PLIB_CLANG_TIDY} --quiet)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                        QT_DEPRECATED_WARNINGS)
if(PLIB_WERROR)
    add_compile_options(-Werror)
endif()
if(PLIB_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(PLIB_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# The share folder stands beside the build tree's lib folder as it does in an installation.
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/share ${PROJECT_BINARY_DIR}/share SYMBOLIC)

# One library of the platform: shared, because the store, the settings and the text service have to
# exist once in a process, with a generated <name>_export.h.
function(vkd_add_platform_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    include(GenerateExportHeader)
    add_library(${name} SHARED ${arg_SOURCES})
    generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${name}_export.h)
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/include
                                              ${CMAKE_CURRENT_BINARY_DIR})
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()

# Compiles translations/<target>_de.ts into the target and makes the translator object that installs
# it when the target is loaded.
function(vkd_add_translations target)
    qt5_add_translation(compiled translations/${target}_de.ts OPTIONS -silent)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT
        "<RCC><qresource prefix=\"/translations\"><file>${target}_de.qm</file></qresource></RCC>\n")
    qt5_add_resources(resources ${list})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/translator.cpp.in translator.cpp @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/translator.cpp ${resources})
endfunction()
