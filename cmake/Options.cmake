# SPDX-License-Identifier: MIT
# What gets built. As a subproject only the library itself is, and nothing global is set.

option(ZBBROWSERVIEW_BUILD_SQLITE "Build the reference data side on SQLite"
       ${PROJECT_IS_TOP_LEVEL})
option(ZBBROWSERVIEW_BUILD_TOOLS "Build zbbrowse, the reference host" ${PROJECT_IS_TOP_LEVEL})
option(ZBBROWSERVIEW_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(ZBBROWSERVIEW_BUILD_BENCH "Build the benchmarks" OFF)
option(ZBBROWSERVIEW_BUILD_COMPARE "Build the comparison with Qt and GTK" OFF)
option(ZBBROWSERVIEW_INSTALL "Generate install rules" ${PROJECT_IS_TOP_LEVEL})
option(ZBBROWSERVIEW_WERROR "Developers: turn on many warnings and make each an error" OFF)
set(ZBBROWSERVIEW_SANITIZE
    ""
    CACHE STRING "Developers: value for -fsanitize=, for instance address,undefined")

# Compile settings of this project's own targets; never exported to a consumer.
add_library(zbBrowserViewBuildSettings INTERFACE)
target_compile_features(zbBrowserViewBuildSettings INTERFACE cxx_std_20)
if(ZBBROWSERVIEW_WERROR)
    target_compile_options(
        zbBrowserViewBuildSettings
        INTERFACE -Wall
                  -Wextra
                  -Wpedantic
                  -Wshadow
                  -Wconversion
                  -Wsign-conversion
                  -Wnon-virtual-dtor
                  -Woverloaded-virtual
                  -Wold-style-cast
                  -Wcast-qual
                  -Wundef
                  -Werror)
endif()
if(ZBBROWSERVIEW_SANITIZE)
    target_compile_options(
        zbBrowserViewBuildSettings INTERFACE -fsanitize=${ZBBROWSERVIEW_SANITIZE}
                                             -fno-omit-frame-pointer
                                             -fno-sanitize-recover=all)
    target_link_options(zbBrowserViewBuildSettings INTERFACE
                        -fsanitize=${ZBBROWSERVIEW_SANITIZE})
endif()
