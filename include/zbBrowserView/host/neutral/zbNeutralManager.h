// SPDX-License-Identifier: MIT
//! \file
//! zbNeutralManager: a manager to derive from.
#pragma once

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>

//! Holds both signal managers and answers neutrally what a manager need not have: no panel, no gui
//! maps, no scripts, no collector buttons. Nothing is left to write; derive from it to publish what
//! zbBrowserManager protects and to replace what the host does have.
class zbNeutralManager : public zbBrowserManager {
public:
    zbNeutralManager() = default;
    zbNeutralManager(zbNeutralManager const&) = delete;
    zbNeutralManager& operator=(zbNeutralManager const&) = delete;

    zbBrowserDataSignalManager* GetDataSignalManager() override { return &dataSignals_; }
    zbIBrowserGuiMapManager* GetGuiMapManager() override { return nullptr; }
    void BeginLongOperation() override {}
    void EndLongOperation() override {}
    //! There is no script language: every result is empty.
    void EvaluateScript(zbString const&, zbString& result) override { result.clear(); }
    void ShowViewItem(zbIBrowserViewItem*) override {}
    zbIBrowserPanel* GetBrowserPanel() override { return nullptr; }
    void RegisterGuiMap(char const*) override {}
    void RegisterGuiMapObject(zbIBrowserGuiMap*, int) override {}
    void ShowCollectorButton(zbIBrowserView*, int, bool) override {}
    zbBrowserSignalManager* GetSignalManager() const override { return &signals_; }
    void OnCollectorSwitchedOn(zbIBrowserView*) override {}

protected:
    ~zbNeutralManager() = default;

private:
    mutable zbBrowserSignalManager signals_; // The interface hands it out from a const operation
    zbBrowserDataSignalManager dataSignals_;
};
