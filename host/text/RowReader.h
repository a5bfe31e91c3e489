// SPDX-License-Identifier: MIT
//! \file
//! What a host tells the painters of its data.
#pragma once

#include "text/Value.h"

#include <string>
#include <vector>

class zbIBrowserDataItemSimple;
class zbIBrowserDataProperty;
class zbIBrowserDataSourceSimple;

namespace zbtext {

//! What only the host knows of its data: which properties are a source's columns, and how to get a
//! value with its type. A host with other data gives the writers another one of these.
class RowReader {
public:
    virtual ~RowReader() = default;

    //! Names for `FindDataProperty` of the source, in the order of its columns.
    virtual std::vector<std::string> GetColumnNames(zbIBrowserDataSourceSimple& source) const = 0;

    //! The bytes of the value live as long as the row. Requires: `IsColumn`.
    virtual Value GetValue(zbIBrowserDataProperty& property,
                           zbIBrowserDataItemSimple& row) const = 0;

    //! Whether a property of the source has values with types. The names of rows, for instance,
    //! have not; a view property is asked for the text then.
    virtual bool IsColumn(zbIBrowserDataProperty& property,
                          zbIBrowserDataSourceSimple& source) const = 0;

    //! Why the source has no rows to give; empty if nothing is wrong.
    virtual std::string GetFault(zbIBrowserDataSourceSimple& source) const = 0;
};

} // namespace zbtext
