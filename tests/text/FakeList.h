// SPDX-License-Identifier: MIT
//! \file
//! Lists made of literals, and what a writer makes of them.
#pragma once

#include "text/ListWriter.h"

#include <gtest/gtest.h>

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

private:
    std::string name_;
    std::vector<std::string> columns_;
    std::vector<std::vector<Value>> rows_;
    std::size_t total_;
    std::string fault_;
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
