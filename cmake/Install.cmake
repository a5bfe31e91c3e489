# SPDX-License-Identifier: MIT
# What is installed: three components, each with its headers, its shared library, an export file
# of its own (so that a consumer of the library alone needs no SQLite) and a pkg-config file.
# No installed file holds an absolute path: the prefix may be moved as a whole.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(zb_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zbBrowserView)
set(zb_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# zb_path_from(OUT base target): the way from one installed folder to another, both relative to
# the prefix (or absolute, where the packager asked for that).
function(zb_path_from out base target)
    if(IS_ABSOLUTE ${target})
        set(${out} ${target} PARENT_SCOPE)
        return()
    endif()
    file(RELATIVE_PATH way /prefix/${base} /prefix/${target})
    set(${out} ${way} PARENT_SCOPE)
endfunction()

# zb_install_component(COMPONENT TARGET t PKGCONFIG name HEADERS dir [EXCLUDE folder])
# HEADERS is copied into include/zbBrowserView; a trailing slash means what is in it.
function(zb_install_component component)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "TARGET;PKGCONFIG;HEADERS;EXCLUDE" "")
    set_target_properties(${ARG_TARGET} PROPERTIES EXPORT_NAME ${component} INSTALL_RPATH $ORIGIN)
    install(
        TARGETS ${ARG_TARGET}
        EXPORT zbBrowserView-${component}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
                COMPONENT ${component}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
                COMPONENT ${component}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
                COMPONENT ${component}
        INCLUDES
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(
        EXPORT zbBrowserView-${component}
        NAMESPACE zbBrowserView::
        DESTINATION ${zb_package_dir}
        COMPONENT ${component})
    set(exclude "")
    if(ARG_EXCLUDE)
        set(exclude PATTERN ${ARG_EXCLUDE} EXCLUDE)
    endif()
    install(
        DIRECTORY ${ARG_HEADERS}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zbBrowserView
        COMPONENT ${component}
        FILES_MATCHING
        PATTERN "*.h" ${exclude})
    configure_file(packaging/${ARG_PKGCONFIG}.pc.in packaging/${ARG_PKGCONFIG}.pc @ONLY)
    install(
        FILES ${PROJECT_BINARY_DIR}/packaging/${ARG_PKGCONFIG}.pc
        DESTINATION ${zb_pkgconfig_dir}
        COMPONENT ${component})
endfunction()

# The variables of the pkg-config templates.
zb_path_from(zb_prefix_from_pkgconfig ${zb_pkgconfig_dir} .)
foreach(dir IN ITEMS LIBDIR INCLUDEDIR)
    set(zb_${dir} ${CMAKE_INSTALL_${dir}})
    if(NOT IS_ABSOLUTE ${zb_${dir}})
        set(zb_${dir} "\${prefix}/${zb_${dir}}")
    endif()
endforeach()

zb_install_component(
    platform
    TARGET zbBrowserViewPlatform
    PKGCONFIG zbbrowserview-platform
    HEADERS include/zbBrowserView/platform)
zb_install_component(
    zbBrowserView
    TARGET zbBrowserView
    PKGCONFIG zbbrowserview
    HEADERS include/zbBrowserView/
    EXCLUDE platform)
if(TARGET zbBrowserViewSqlite)
    zb_install_component(
        sqlite
        TARGET zbBrowserViewSqlite
        PKGCONFIG zbbrowserview-sqlite
        HEADERS host/sqlite/include/zbBrowserView/)
endif()
if(TARGET zbbrowse)
    zb_path_from(zb_libdir_from_bindir ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR})
    if(NOT IS_ABSOLUTE ${zb_libdir_from_bindir})
        set(zb_libdir_from_bindir $ORIGIN/${zb_libdir_from_bindir})
    endif()
    set_target_properties(zbbrowse PROPERTIES INSTALL_RPATH ${zb_libdir_from_bindir})
    install(TARGETS zbbrowse RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT zbbrowse)
endif()

configure_package_config_file(
    packaging/zbBrowserViewConfig.cmake.in packaging/zbBrowserViewConfig.cmake
    INSTALL_DESTINATION ${zb_package_dir})
# Before 1.0 a minor release may break what was.
write_basic_package_version_file(packaging/zbBrowserViewConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(
    FILES ${PROJECT_BINARY_DIR}/packaging/zbBrowserViewConfig.cmake
          ${PROJECT_BINARY_DIR}/packaging/zbBrowserViewConfigVersion.cmake
    DESTINATION ${zb_package_dir}
    COMPONENT platform)
