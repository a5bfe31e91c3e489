// SPDX-License-Identifier: MIT
//! \file
//! Enumerations that host and library share. All are 32 bits wide, and values without a name here
//! are valid where the range says so.
#pragma once

#include <cstdint>

//! Type of the value that a view property shows. Valid values are 1 to 13; those without a name
//! mean nothing to the library and may be used by a host as it likes.
enum ZBBROWSER_DATA_TYPE : std::int32_t {
    ZBBROWSER_DATA_TYPE_NOT_SET = 0,
    ZBBROWSER_DATA_TYPE_BOOLEAN = 1, //!< `zbVariant` of kind 1
    ZBBROWSER_DATA_TYPE_INTEGER = 3, //!< `zbVariant` of kind 2, 3 or 4
    ZBBROWSER_DATA_TYPE_DOUBLE = 4,  //!< `zbVariant` of kind 5 or 6
    ZBBROWSER_DATA_TYPE_STRING = 5,  //!< `zbVariant` of kind 7
    ZBBROWSER_DATA_TYPE_OTHER = 10,  //!< `zbVariant` of kind 8
    ZBBROWSER_DATA_TYPE_LAST = 13
};

//! What a collector of a new view does: an index from 0 to 9 into the operations and buttons that
//! the host has set. What the ten stand for is the host's choice, apart from the two below.
//! The library does not test the range of an index that it is given.
enum ZBBROWSER_COLSEL_TYPE : std::int32_t {
    ZBBROWSER_COLSEL_TYPE_FIRST = 0,
    //! The button that is shown or hidden along with the panel's collector button.
    ZBBROWSER_COLSEL_TYPE_PANEL = 4,
    //! Runs when it is asked for only, never because the selection changed.
    ZBBROWSER_COLSEL_TYPE_ON_DEMAND = 5,
    ZBBROWSER_COLSEL_TYPE_LAST = 9
};

//! Collector buttons of an old view, by the number of the script keyword that names them.
//! The library keeps a flag for each named value; to any other it answers "not shown".
enum ZBBROWSER_TCLAPI_KEYWORD : std::int32_t {
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_113 = 113,
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_114 = 114,
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_115 = 115,
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_116 = 116,
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_119 = 119,
    ZBBROWSER_TCLAPI_KEYWORD_PANEL_COLLECTOR = 121, //!< hidden at first, all others shown
    ZBBROWSER_TCLAPI_KEYWORD_BUTTON_122 = 122
};
