// SPDX-License-Identifier: MIT
//! \file
//! Lists made of literals, and what a writer makes of them.
#pragma once

#include "text/ListWriter.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zbtest {

using zbtext::Value;

//! A list whose rows stand in memory. The first value of a row is its name if it is a text.
class FakeList : public zbtext::List {
public:
    FakeList(std::string name, std::vector<std::string> columns,
             std::vector<std::vector<Value>> rows = {})
        : name_(std::move(name))
        , columns_(std::move(columns))
        , rows_(std::move(rows))
        , total_(rows_.size()) {}

    FakeList& WithTotal(std::size_t total) {
        total_ = total;
        return *this;
    }

    FakeList& WithFault(std::string fault) {
        fault_ = std::move(fault);
        return *this;
    }

    FakeList& SortedBy(std::size_t column, bool ascending) {
        sortMark_ = {column, ascending};
        return *this;
    }

    //! Gives each cell of a column a look.
    FakeList& WithLook(std::size_t column, zbtext::Look look) {
        looks_[column] = look;
        return *this;
    }

    //! Gives each row an icon.
    FakeList& WithIcon(std::string icon) {
        icon_ = std::move(icon);
        return *this;
    }

    std::string const& GetName() const override { return name_; }
    std::string const& GetFault() const override { return fault_; }
    std::vector<std::string> const& GetColumns() const override { return columns_; }
    std::size_t GetTotal() const override { return total_; }
    std::size_t GetRowCount() const override { return rows_.size(); }

    Value GetRowName(std::size_t row) const override {
        auto const& first = rows_[row].front();
        return first.kind == zbtext::ValueKind::Text ? first : Value{};
    }

    Value GetValue(std::size_t row, std::size_t column) const override {
        return rows_[row][column];
    }

    bool HasIcons() const override { return icon_.has_value(); }
    Value GetIcon(std::size_t /*row*/) const override { return Value::OfText(*icon_); }
    std::optional<zbtext::SortMark> GetSortMark() const override { return sortMark_; }
    zbtext::Look GetLook(std::size_t /*row*/, std::size_t column) const override {
        auto const found = looks_.find(column);
        return found == looks_.end() ? zbtext::Look{} : found->second;
    }

private:
    std::string name_;
    std::vector<std::string> columns_;
    std::vector<std::vector<Value>> rows_;
    std::size_t total_;
    std::string fault_;
    std::optional<std::string> icon_;
    std::optional<zbtext::SortMark> sortMark_;
    std::map<std::size_t, zbtext::Look> looks_;
};

using Lists = std::vector<std::unique_ptr<zbtext::List>>;

template <class... Fakes>
Lists MakeLists(Fakes&&... fakes) {
    Lists lists;
    (lists.push_back(std::make_unique<FakeList>(std::forward<Fakes>(fakes))), ...);
    return lists;
}

//! What `Writer` writes of the lists; `arguments` follow the output in its constructor.
template <class Writer, class... Arguments>
std::string Written(Lists const& lists, Arguments const&... arguments) {
    zbtext::StringSink sink;
    zbtext::Output output(sink);
    Writer(output, arguments...).WriteLists(lists);
    output.Finish();
    return sink.GetText();
}

template <class Writer, class... Arguments>
std::string WrittenView(zbtext::Folder const& root, Arguments const&... arguments) {
    zbtext::StringSink sink;
    zbtext::Output output(sink);
    Writer(output, arguments...).WriteView(root);
    output.Finish();
    return sink.GetText();
}

inline Value Text(std::string_view text) {
    return Value::OfText(text);
}

inline Value Number(std::int64_t number) {
    return Value::OfInteger(number);
}

inline Value Real(double number) {
    return Value::OfReal(number);
}

inline Value Blob(std::string_view bytes) {
    return Value::OfBlob(bytes);
}

} // namespace zbtest
