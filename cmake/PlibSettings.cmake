# Settings for all targets, and functions that create targets.

if(NOT CMAKE_CXX_STANDARD)
    set(CMAKE_CXX_STANDARD 17)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON) # keeps the path of the build folder out of the programs
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# The installed programs find the libraries even if the installation is moved. Packages for system
# folders set CMAKE_SKIP_INSTALL_RPATH or their own RPATH.
if(NOT DEFINED CMAKE_INSTALL_RPATH)
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set(CMAKE_INSTALL_RPATH "$ORIGIN/${libraries}" "$ORIGIN")
endif()

set(PLIB_QT 5 CACHE STRING "Major version of Qt: 5, which the suite uses, or 6")
set_property(CACHE PLIB_QT PROPERTY STRINGS 5 6)
set(PLIB_QT_MINIMUM_5 5.15)
set(PLIB_QT_MINIMUM_6 6.4)
if(NOT PLIB_QT_MINIMUM_${PLIB_QT})
    message(FATAL_ERROR "PLIB_QT is ${PLIB_QT}; it must be 5 or 6")
endif()
set(PLIB_QT_MINIMUM ${PLIB_QT_MINIMUM_${PLIB_QT}})
find_package(Qt${PLIB_QT} ${PLIB_QT_MINIMUM} REQUIRED COMPONENTS Core LinguistTools Widgets)

# The libraries for both versions of Qt can be installed in the same folders. The names of the files
# and folders of the Qt 6 libraries have a suffix; those of the Qt 5 libraries never change.
set(PLIB_SUFFIX "")
if(PLIB_QT EQUAL 6)
    set(PLIB_SUFFIX -qt6)
endif()

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
if(CMAKE_UNITY_BUILD)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
    add_compile_options(-Wno-subobject-linkage) # treats the sources of a batch as headers
endif()
if(PLIB_WERROR)
    add_compile_options(-Werror)
endif()
if(PLIB_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(PLIB_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(PLIB_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# The share folder is beside the lib folder of the build tree, as in an installation.
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/share ${PROJECT_BINARY_DIR}/share SYMBOLIC)

# Sets the version of a library and installs it as the target vkd::<name> of the package <package>.
# The major version is the version of its binary interface. Users find its headers in the folder
# <headers>.
function(vkd_install_target name package headers)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION}
                                             SOVERSION ${PROJECT_VERSION_MAJOR}
                                             OUTPUT_NAME ${name}${PLIB_SUFFIX})
    add_library(vkd::${name} ALIAS ${name})
    set_property(GLOBAL APPEND PROPERTY ${package}_targets ${name})
    set_property(TARGET ${name} PROPERTY vkd_headers ${headers})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vkd${PLIB_SUFFIX}/${headers}>)
    install(TARGETS ${name} EXPORT ${package} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
                                                      COMPONENT runtime
                                                      NAMELINK_COMPONENT development)
endfunction()

# Compiles each public header of a library on its own, with the compiler settings that users of the
# library get. The target `headers` does this for all libraries.
add_custom_target(headers)
function(vkd_check_headers name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/headers)
    set(sources)
    file(GLOB headers RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/include CONFIGURE_DEPENDS include/*)
    foreach(header IN LISTS headers)
        file(CONFIGURE OUTPUT ${folder}/${header}.cpp CONTENT "#include <@header@>\n" @ONLY)
        list(APPEND sources ${folder}/${header}.cpp)
    endforeach()
    add_library(headers_${name} OBJECT EXCLUDE_FROM_ALL ${sources})
    set_target_properties(headers_${name} PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
    target_link_libraries(headers_${name} PRIVATE ${name})
    add_dependencies(headers headers_${name})
endfunction()

# Installs a library, and installs its headers into a separate folder. The version is in the header
# <name>_version.h.
function(vkd_install_library name package)
    vkd_install_target(${name} ${package} ${name})
    string(TOUPPER ${name} prefix)
    set(version ${CMAKE_CURRENT_BINARY_DIR}/${name}_version.h)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.h.in ${version} @ONLY)
    install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vkd${PLIB_SUFFIX}/${name}
            COMPONENT development)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}_export.h ${version}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vkd${PLIB_SUFFIX}/${name} COMPONENT development)
    vkd_check_headers(${name})
endfunction()

# Installs the file <name>${PLIB_SUFFIX}.pc for pkg-config. Its paths are relative, so that the
# installation can be moved. The file requires the libraries that the target links publicly.
function(vkd_install_pkgconfig name)
    get_target_property(headers ${name} vkd_headers)
    get_target_property(linked ${name} INTERFACE_LINK_LIBRARIES)
    list(FILTER linked INCLUDE REGEX "^(Qt|vkd_)")
    list(TRANSFORM linked APPEND "${PLIB_SUFFIX}" REGEX "^vkd_")
    list(TRANSFORM linked REPLACE "::" "")
    list(REMOVE_DUPLICATES linked)
    list(JOIN linked " " requires)
    set(folder ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH libraries ${folder} ${CMAKE_INSTALL_FULL_LIBDIR})
    file(RELATIVE_PATH includes ${folder} ${CMAKE_INSTALL_FULL_INCLUDEDIR}/vkd${PLIB_SUFFIX}/${headers})
    set(file ${PROJECT_BINARY_DIR}/pkgconfig/${name}${PLIB_SUFFIX}.pc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${file} @ONLY)
    install(FILES ${file}
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()

# Installs the files for find_package(<package>${PLIB_SUFFIX}): the targets and the package file, which
# is generated from cmake/<package>Config.cmake.in. The names of the targets have no suffix. The
# targets also have aliases without the namespace vkd::.
function(vkd_install_package package)
    include(CMakePackageConfigHelpers)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${package}${PLIB_SUFFIX})
    set(version ${CMAKE_CURRENT_BINARY_DIR}/${package}${PLIB_SUFFIX}ConfigVersion.cmake)
    set(config ${CMAKE_CURRENT_BINARY_DIR}/${package}${PLIB_SUFFIX}Config.cmake)
    get_property(targets GLOBAL PROPERTY ${package}_targets)
    foreach(name IN LISTS targets)
        vkd_install_pkgconfig(${name})
    endforeach()
    string(REPLACE ";" " " targets "${targets}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in ${config} @ONLY)
    write_basic_package_version_file(${version} COMPATIBILITY SameMajorVersion)
    install(EXPORT ${package} FILE ${package}Targets.cmake NAMESPACE vkd:: DESTINATION ${folder}
            COMPONENT development)
    install(FILES ${config} ${version} DESTINATION ${folder} COMPONENT development)
endfunction()

function(vkd_set_platform_link_options name)
    set(map ${PROJECT_SOURCE_DIR}/cmake/platform.map)
    target_link_options(${name} PRIVATE LINKER:-z,nodelete LINKER:--version-script=${map})
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map})
endfunction()

# vkd_add_platform_library(<name> SOURCES ... [CORE ...]) adds a library of the platform, with a
# generated <name>_export.h. It is shared, because the store, the settings and the text service must
# exist only once in a process. It is never unloaded, for two reasons: Qt keeps references to its
# callbacks, icons and windows and offers no way to remove all of them, and settings and open
# projects outlive the plug-in that loaded the library.
#
# The sources after CORE need no widgets. They become a second shared library, <name>_core, with the
# same headers. <name> links it; a program without widgets loads only <name>_core.
function(vkd_add_platform_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE;CORE;CORE_PUBLIC;CORE_PRIVATE" ${ARGN})
    include(GenerateExportHeader)
    add_library(${name} SHARED ${arg_SOURCES})
    generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${name}_export.h)
    target_include_directories(${name} PRIVATE src)
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    vkd_set_platform_link_options(${name})
    vkd_install_library(${name} vkd_platform)
    if(arg_CORE)
        add_library(${name}_core SHARED ${arg_CORE})
        target_compile_definitions(${name}_core PRIVATE ${name}_EXPORTS)
        target_include_directories(${name}_core PRIVATE src)
        target_link_libraries(${name}_core PUBLIC ${arg_CORE_PUBLIC} PRIVATE ${arg_CORE_PRIVATE})
        vkd_set_platform_link_options(${name}_core)
        vkd_install_target(${name}_core vkd_platform ${name})
        target_link_libraries(${name} PUBLIC ${name}_core)
    endif()
endfunction()

# vkd_add_translations(<target> [<file>]): compiles <file>, translations/<target>_de.ts by default,
# into the target, and adds the translator object that installs the translation when the target is
# loaded. The file is named <module>_de.ts; the module name is the target name, unless the suite
# uses another name.
function(vkd_add_translations target)
    set(file translations/${target}_de.ts)
    if(ARGC GREATER 1)
        set(file ${ARGV1})
    endif()
    get_filename_component(module ${file} NAME)
    string(REPLACE _de.ts "" module ${module})
    qt_add_translation(compiled ${file} OPTIONS -silent)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${module}_translations.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT
        "<RCC><qresource prefix=\"/translations\"><file>${module}_de.qm</file></qresource></RCC>\n")
    qt_add_resources(resources ${list} OPTIONS --format-version 1) # contains no file times
    set(translator ${CMAKE_CURRENT_BINARY_DIR}/${module}_translator.cpp)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/translator.cpp.in ${translator} @ONLY)
    set_source_files_properties(${resources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_sources(${target} PRIVATE ${translator} ${resources})
endfunction()
