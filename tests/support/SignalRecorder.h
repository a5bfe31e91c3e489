// SPDX-License-Identifier: MIT
//! \file
//! SignalRecorder: writes down every signal of a host as a line of text.
#pragma once

#include "RecordingHostCalls.h"

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>

#include <set>
#include <string>
#include <vector>

namespace zbtest {

class RecordingHost;

//! Listens to every signal of both managers and appends a line for each: the name of the signal and
//! then its arguments, such as "ViewItemReparented bolt_1 box". Items, views, columns, styles,
//! sources and controls are written by their names (NameOf in ViewItemNames.h), lists as "[a b]",
//! texts in quotes, flags as true and false, menus and selection managers as "menu" and so on.
//!
//! A recorder that goes with lines that nobody took fails its test.
class SignalRecorder final : public zbListener<single_threaded> {
public:
    explicit SignalRecorder(RecordingHost& host);
    //! `calls` names data items by address; null: they are asked for their names.
    SignalRecorder(zbBrowserSignalManager& signals, zbBrowserDataSignalManager& dataSignals,
                   RecordingHostCalls const* calls = nullptr);
    ~SignalRecorder() override;

    //! The lines so far; they are forgotten.
    [[nodiscard]] std::vector<std::string> take();
    //! For a test to which the signals so far do not matter.
    void Discard() { lines_.clear(); }
    //! Number of lines so far that begin with this signal.
    [[nodiscard]] std::size_t Count(std::string const& signal) const;

    //! These signals leave no lines from now on. Throws std::invalid_argument for a name that is no
    //! signal.
    void Ignore(std::set<std::string> const& signals);
    //! Only these signals leave lines from now on. Throws as Ignore.
    void Only(std::set<std::string> const& signals);
    void ListenToAll() { ignored_.clear(); }

    //! Runs `slot` in each emission, after the line was written, until the handle cuts it or the
    //! recorder goes: `recorder.On(&zbBrowserSignalManager::ViewItemCreated, [&](auto* item) {…});`
    template <class... Args, class Slot>
    zbConnectionHandle<single_threaded>
    On(zbSignal<single_threaded, Args...> zbBrowserSignalManager::*signal, Slot slot) {
        return (signals_.*signal).Connect(std::move(slot), this);
    }
    template <class... Args, class Slot>
    zbConnectionHandle<single_threaded>
    On(zbSignal<single_threaded, Args...> zbBrowserDataSignalManager::*signal, Slot slot) {
        return (dataSignals_.*signal).Connect(std::move(slot), this);
    }

    //! As On, but for the next emission only.
    template <class Signal, class Manager, class Slot>
    void Once(Signal Manager::*signal, Slot slot) {
        static_cast<void>(On(signal, [slot, done = false](auto&&... arguments) mutable {
            if (!std::exchange(done, true)) {
                slot(arguments...);
            }
        }));
    }

    //! The names of all signals, those of the views first, in the order of the managers.
    [[nodiscard]] std::vector<std::string> const& SignalNames() const { return names_; }

private:
    void ListenToViews();
    void ListenToColumnsAndFolders();
    void ListenToCollectors();
    void ListenToData();
    void CheckNames(std::set<std::string> const& signals) const;
    void Append(char const* signal, std::vector<std::string> const& arguments);

    template <class... Args>
    void Listen(zbSignal<single_threaded, Args...>& signal, char const* name) {
        names_.emplace_back(name);
        static_cast<void>(signal.Connect(
            [this, name](Args... arguments) { Append(name, {Text(arguments)...}); }, this));
    }

    [[nodiscard]] std::string Text(bool flag) const { return flag ? "true" : "false"; }
    [[nodiscard]] std::string Text(int number) const { return std::to_string(number); }
    [[nodiscard]] std::string Text(ZBBROWSER_TCLAPI_KEYWORD keyword) const;
    [[nodiscard]] std::string Text(ZBBROWSER_COLSEL_TYPE type) const;
    [[nodiscard]] std::string Text(char const* text) const;
    [[nodiscard]] std::string Text(zbIBrowserView* view) const;
    [[nodiscard]] std::string Text(zbIBrowserViewItem* item) const;
    [[nodiscard]] std::string Text(zbIBrowserViewItemFreeFolder* folder) const;
    [[nodiscard]] std::string Text(zbIBrowserDataItem* item) const;
    [[nodiscard]] std::string Text(zbIBrowserDataItemSimple* item) const;
    [[nodiscard]] std::string Text(zbIBrowserDataItemHierarchical* item) const;
    [[nodiscard]] std::string Text(zbIBrowserDataSource* source) const;
    [[nodiscard]] std::string Text(zbIBrowserDataCtrl* control) const;
    [[nodiscard]] std::string Text(zbIBrowserDataCollector* collector) const;
    [[nodiscard]] std::string Text(zbIBrowserViewColumn* column) const;
    [[nodiscard]] std::string Text(zbIBrowserStyle* style) const;
    [[nodiscard]] std::string Text(zbIBrowserPopupMenu* menu) const;
    [[nodiscard]] std::string Text(zbIBrowserSelectionManager* manager) const;
    [[nodiscard]] std::string Text(zbBrowserDataItemMap const& map) const;
    template <class T>
    [[nodiscard]] std::string Text(std::vector<T*> const& elements) const {
        std::string text = "[";
        for (T* const element : elements) {
            text.append(text.size() > 1 ? " " : "").append(Text(element));
        }
        return text + "]";
    }

    zbBrowserSignalManager& signals_;
    zbBrowserDataSignalManager& dataSignals_;
    RecordingHostCalls const* calls_; // Not owned; may be null.
    std::vector<std::string> names_;
    std::set<std::string> ignored_;
    std::vector<std::string> lines_;
};

} // namespace zbtest
