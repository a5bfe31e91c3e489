// SPDX-License-Identifier: MIT
//! \file
//! The rows of a database for the writers.
#pragma once

#include "text/RowReader.h"

namespace zbbrowse {

//! Takes names and values from the data properties of the SQLite data side, with their SQL types.
class RowValues : public zbtext::RowReader {
public:
    std::vector<std::string> GetColumnNames(zbIBrowserDataSourceSimple& source) const override;
    zbtext::Value GetValue(zbIBrowserDataProperty& property,
                           zbIBrowserDataItemSimple& row) const override;
    bool IsColumn(zbIBrowserDataProperty& property,
                  zbIBrowserDataSourceSimple& source) const override;
    std::string GetFault(zbIBrowserDataSourceSimple& source) const override;
};

} // namespace zbbrowse
