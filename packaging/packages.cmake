# Settings of the Debian packages, which packaging/makePackages builds with the preset `package`.
if(NOT PLIB_QT EQUAL 5)
    message(FATAL_ERROR "The names and dependencies of the Debian packages are those for Qt 5")
endif()
# The owner of the project chooses the licence, so its text is read from a file.
set(PLIB_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE CACHE FILEPATH "Text of the licence for the packages")
set(PLIB_MAINTAINER "" CACHE STRING "Maintainer of the Debian packages, with a mail address")

set(library libplib${PROJECT_VERSION_MAJOR})
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development workbench documentation)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${PLIB_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
# Later versions with the same SONAME are compatible. These two variables apply to all components:
# CPack does not read them with the name of a component.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
# CPack indents the lines of a description and replaces blank lines with a full stop.
set(sentence "plib provides Qt widget pages for a finite-element desktop: the plots of a
graphical output, and the design parameters of area elements.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "widget pages for a finite-element desktop
${sentence}

This package contains the shared libraries and their data.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libplib-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library} (= ${version}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "widget pages for a finite-element desktop - headers
${sentence}

This package contains the headers, and files for CMake and pkg-config.")

set(CPACK_DEBIAN_WORKBENCH_PACKAGE_NAME plib-workbench)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_SECTION science)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS "${library} (= ${version})")
set(CPACK_DEBIAN_WORKBENCH_DESCRIPTION "desktop and command line for finite-element plots
${sentence}

This package contains a desktop program and a command line that use the pages.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME plib-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_DESCRIPTION "widget pages for a finite-element desktop - documentation
${sentence}

This package contains the guides, the examples and the header reference.")

# Each package contains a copyright file and a changelog.
execute_process(COMMAND date -R -u -d ${PLIB_RELEASE_DATE} OUTPUT_VARIABLE date
                OUTPUT_STRIP_TRAILING_WHITESPACE)
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog)
file(WRITE ${changelog} "plib (${version}) unstable; urgency=medium\n\n"
     "  * Version ${PROJECT_VERSION}; see CHANGELOG.md in the package plib-doc.\n\n"
     " -- ${PLIB_MAINTAINER}  ${date}\n")
execute_process(COMMAND gzip -9nfk ${changelog})
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(CODE "if(NOT EXISTS ${PLIB_LICENSE})
    message(FATAL_ERROR \"The packages need the text of the licence in the file ${PLIB_LICENSE}\")
endif()" COMPONENT ${component})
    install(FILES ${PLIB_LICENSE} DESTINATION ${folder} RENAME copyright COMPONENT ${component})
    install(FILES ${changelog}.gz DESTINATION ${folder} RENAME changelog.Debian.gz
            COMPONENT ${component})
endforeach()
include(CPack)
