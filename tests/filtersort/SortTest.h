// SPDX-License-Identifier: MIT
//! \file
//! What the tests of sorting share.
#pragma once

#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zbtest {

using Names = std::vector<std::string>;

//! Writes down the signals that have to do with sorting; unlike SignalRecorder it names the
//! columns: "ColumnSortChanged weight true false".
class SortSignals {
public:
    explicit SortSignals(RecordingHost& host)
        : recorder_(host) {
        recorder_.Only({});
        auto const named = [this](char const* signal) {
            return [this, signal](zbIBrowserViewColumn* column, bool sorted, bool ascending) {
                Add(std::string(signal) + " " + column->GetName() + Text(sorted) + Text(ascending));
            };
        };
        static_cast<void>(
            recorder_.On(&zbBrowserSignalManager::ColumnSortChanged, named("ColumnSortChanged")));
        static_cast<void>(
            recorder_.On(&zbBrowserSignalManager::ColumnSortRepeated, named("ColumnSortRepeated")));
        static_cast<void>(recorder_.On(&zbBrowserSignalManager::ViewChanged,
                                       [this](zbIBrowserView*) { Add("ViewChanged"); }));
        static_cast<void>(
            recorder_.On(&zbBrowserDataSignalManager::SortChanging,
                         [this](bool changing) { Add("SortChanging" + Text(changing)); }));
    }

    [[nodiscard]] Names take() { return std::exchange(lines_, {}); }
    void Discard() { lines_.clear(); }

    //! As SignalRecorder::Once.
    template <class Signal, class Manager, class Slot>
    void Once(Signal Manager::*signal, Slot slot) {
        recorder_.Once(signal, std::move(slot));
    }

private:
    static std::string Text(bool flag) { return flag ? " true" : " false"; }
    void Add(std::string line) { lines_.push_back(std::move(line)); }

    Names lines_;
    SignalRecorder recorder_;
};

//! A scripted column, made if need be.
[[nodiscard]] inline zbIBrowserViewColumn& ColumnOf(zbIBrowserView& view, char const* name) {
    view.CreateTextBoxColumn(name, name);
    auto* const column = view.FindColumn(name);
    if (column == nullptr)
        throw std::out_of_range(name);
    return *column;
}

} // namespace zbtest
