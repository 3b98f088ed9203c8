# What `cmake --install` puts down for those who build against the library: the shared library, the
# public headers, a CMake package and a pkg-config file. The tables and the command are installed by
# their own folders. Every path is relative, so an installed tree may be moved.
include(CMakePackageConfigHelpers)

# The public headers are hydrofacts/hydrofacts.h and what it includes, directly or not. They are found
# by following the includes: a header that a public one needs can't be forgotten.
function(hydrofacts_included_headers result)
    set(found ${ARGN})
    set(open ${ARGN})
    while(open)
        list(POP_FRONT open header)
        file(STRINGS ${PROJECT_SOURCE_DIR}/${header} lines REGEX "^#include \"")
        foreach(line IN LISTS lines)
            string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
            if(NOT included IN_LIST found)
                list(APPEND found ${included})
                list(APPEND open ${included})
            endif()
        endforeach()
    endwhile()
    list(SORT found)
    set(${result} ${found} PARENT_SCOPE)
endfunction()
hydrofacts_included_headers(public_headers hydrofacts/hydrofacts.h)

# The view on Qt is a second library, whose header includes none of Qt's.
set(qt_header win32/qt/QtView.h)

# The other way round: what is exported has to be reachable, or no host could use it.
file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/win32/*.h ${PROJECT_SOURCE_DIR}/quillbase/*.h
     ${PROJECT_SOURCE_DIR}/kvogui/*.h ${PROJECT_SOURCE_DIR}/hydrofacts/*.h)
foreach(header IN LISTS headers)
    if(NOT header IN_LIST public_headers AND NOT header STREQUAL qt_header)
        file(STRINGS ${PROJECT_SOURCE_DIR}/${header} exports REGEX "HYDROFACTS_API ")
        if(exports)
            message(SEND_ERROR "${header} exports names, but hydrofacts/hydrofacts.h doesn't reach it")
        endif()
    endif()
endforeach()

foreach(header IN LISTS public_headers)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header})
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder}
            COMPONENT Development)
endforeach()
# For scripts/docs.
list(JOIN public_headers "\n" header_lines)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/public_headers.txt CONTENT "${header_lines}\n")

install(TARGETS hydrofacts EXPORT HydrofactsTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)

if(TARGET win32_qt)
    install(FILES ${PROJECT_SOURCE_DIR}/${qt_header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/win32/qt
            COMPONENT Qt)
    # It finds the other library beside itself, wherever the two are put.
    set_target_properties(win32_qt PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS win32_qt EXPORT HydrofactsQtTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Qt
        NAMELINK_COMPONENT Qt)
    install(EXPORT HydrofactsQtTargets NAMESPACE Hydrofacts:: COMPONENT Qt
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Hydrofacts)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Hydrofacts)
install(EXPORT HydrofactsTargets NAMESPACE Hydrofacts:: DESTINATION ${package_dir}
        COMPONENT Development)
configure_package_config_file(cmake/HydrofactsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/HydrofactsConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/HydrofactsConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/HydrofactsConfig.cmake
    ${PROJECT_BINARY_DIR}/HydrofactsConfigVersion.cmake
    DESTINATION ${package_dir}
    COMPONENT Development)

set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
           BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir}
           OUTPUT_VARIABLE prefix_from_pkgconfig)
configure_file(cmake/hydrofacts.pc.in ${PROJECT_BINARY_DIR}/hydrofacts.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/hydrofacts.pc DESTINATION ${pkgconfig_dir} COMPONENT Development)
