// SPDX-License-Identifier: MIT
//! \file
//! The names of rows as a data property.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralDataProperty.h>

namespace zbsqlite {

class Source;

//! Gives the name of a row of its source, whatever columns it is made of.
class RowName final : public zbNeutralDataProperty {
public:
    explicit RowName(Source const& source)
        : source_(source) {}

    bool GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                        zbString& out) override;
    bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) override;
    bool GetVariant(zbVariant& out) override;

private:
    Source const& source_;
};

} // namespace zbsqlite
