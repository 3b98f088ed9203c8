# Packages, made by `cpack --config BUILD/CPackConfig.cmake`: for Debian the library with its tables and
# the command, what one builds against it with, and, where Qt was there, the view on Qt and the demo; for
# Windows one zip of everything. Configure with -DCMAKE_INSTALL_PREFIX=/usr for Debian's own library folder.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/hydrofacts)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${doc_dir})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${doc_dir}
        FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.png" PATTERN "*.?TBL" PATTERN "*.DAT" PATTERN "*.csv")

# What is in them of others' code, and what has changed, where one looks for it on each system. The manual
# page is made where go-md2man is there (`scripts/setup --packages`), without which everything else goes on:
# here and not by the build, so that configuring anew is enough for a package to have it.
set(notices ${PROJECT_SOURCE_DIR}/third-party/NOTICES)
set(changes ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
if(WIN32)
    install(FILES ${notices} DESTINATION . RENAME NOTICES.txt)
    install(FILES ${changes} DESTINATION ${doc_dir})
else()
    install(FILES ${notices} DESTINATION ${doc_dir} RENAME copyright)
    install(FILES ${notices} DESTINATION ${doc_dir}-dev RENAME copyright COMPONENT Development)
    if(TARGET win32_qt)
        install(FILES ${notices} DESTINATION ${doc_dir}-qt RENAME copyright COMPONENT Qt)
    endif()
    if(TARGET hydrofacts-demo)
        install(FILES ${notices} DESTINATION ${doc_dir}-demo RENAME copyright COMPONENT Demo)
    endif()

    # hydrofacts_install_compressed(FILE NAME FOLDER) installs FILE as FOLDER/NAME.gz, the same bytes each time.
    find_program(HYDROFACTS_GZIP gzip REQUIRED)
    function(hydrofacts_install_compressed file name folder)
        execute_process(COMMAND ${HYDROFACTS_GZIP} -9nc ${file} OUTPUT_FILE ${PROJECT_BINARY_DIR}/${name}.gz
                        COMMAND_ERROR_IS_FATAL ANY)
        install(FILES ${PROJECT_BINARY_DIR}/${name}.gz DESTINATION ${folder})
    endfunction()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changes})
    hydrofacts_install_compressed(${changes} changelog ${doc_dir})
    find_program(HYDROFACTS_MD2MAN go-md2man)
    if(HYDROFACTS_MD2MAN)
        set(man_page ${PROJECT_BINARY_DIR}/hydrofacts.1)
        set(man_script ${PROJECT_SOURCE_DIR}/scripts/man-page)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                     ${PROJECT_SOURCE_DIR}/docs/command.md ${man_script})
        execute_process(COMMAND ${man_script} ${man_page} COMMAND_ERROR_IS_FATAL ANY)
        hydrofacts_install_compressed(${man_page} hydrofacts.1 ${CMAKE_INSTALL_MANDIR}/man1)
    else()
        message(STATUS "Without the manual page: it needs go-md2man")
    endif()
endif()


set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME hydrofacts)
set(CPACK_PACKAGE_VENDOR "the Hydrofacts maintainers")
set(CPACK_PACKAGE_CONTACT "Hydrofacts maintainers <maintainers@hydrofacts.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "fluid properties, pipe and fitting data, unit conversion")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME hydrofacts-${PROJECT_VERSION}-win64)
    include(CPack)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# What a program needs of other packages is read from the program. What is linked with this library
# needs this version of it: the package carries one interface only, so another version may have another.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME hydrofacts)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION science)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS gnuplot-nox)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Engineering data for programs that model fluid systems in pipes: properties of
fluids from fitted formulas and cubic equations of state, sizes of pipes,
resistances of fittings and valves, conversion of units. This package has the
shared library, its tables and the hydrofacts command.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME hydrofacts-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS libboost-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS Runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers, CMake package and pkg-config file, to build programs with the library
of the package hydrofacts.")

set(CPACK_DEBIAN_QT_PACKAGE_NAME hydrofacts-qt)
set(CPACK_DEBIAN_QT_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_QT_PACKAGE_SUGGESTS "hydrofacts-dev, qt6-base-dev")
set(CPACK_COMPONENT_QT_DEPENDS Runtime)
set(CPACK_COMPONENT_QT_DESCRIPTION
    "Shows the dialogs of programs that use hydrofacts with Qt 6, and has what such
programs are built with.")

set(CPACK_DEBIAN_DEMO_PACKAGE_NAME hydrofacts-demo)
set(CPACK_DEBIAN_DEMO_PACKAGE_SECTION science)
set(CPACK_COMPONENT_DEMO_DEPENDS Runtime Qt)
set(CPACK_COMPONENT_DEMO_DESCRIPTION
    "The dialogs of hydrofacts in a window, to choose a fluid, a pipe or a valve.")
include(CPack)
