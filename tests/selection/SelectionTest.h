// SPDX-License-Identifier: MIT
//! \file
//! A view of either generation with folders to select, and a notifier that keeps notes.
#pragma once

#include "support/Generations.h"
#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"
#include "support/ViewItemNames.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserSelectionNotifierBase.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zbtest {

using Items = std::vector<zbIBrowserViewItem*>;

//! "[a b]"
[[nodiscard]] inline std::string TextOf(Items const& items) {
    std::string text = "[";
    for (auto const* const item : items) {
        text.append(text.size() > 1 ? " " : "").append(NameOf(item));
    }
    return text + "]";
}

//! The same, in the order in which a selection comes out.
[[nodiscard]] inline std::string InOrder(Items items) {
    std::sort(items.begin(), items.end(), std::less<>());
    return TextOf(items);
}

//! Writes down what it is told. What is set in `on...` runs after that.
class RecordingNotifier final : public zbIBrowserSelectionNotifierBase {
public:
    explicit RecordingNotifier(std::string const& name = "")
        : name_(name.empty() ? name : name + " ") {}

    std::function<void()> onChanged = [] {};
    std::function<void()> onPopup = [] {};
    std::function<void()> onFinished = [] {};
    std::vector<std::string>* lines = &own_; //!< Where it writes to.

    [[nodiscard]] std::vector<std::string> take() { return std::exchange(*lines, {}); }

    void OnSelectionChanged(Items const& items, bool selected) override {
        lines->push_back(name_ + (selected ? "selected " : "deselected ") + TextOf(items));
        Run(onChanged);
    }
    void OnPopupSelection(bool flag) override {
        lines->push_back(name_ + (flag ? "popup true" : "popup false"));
        Run(onPopup);
    }
    void OnSelectionFinished() override {
        lines->push_back(name_ + "finished");
        Run(onFinished);
    }

private:
    //! It may take the notifier away, so a copy runs.
    static void Run(std::function<void()> const& action) {
        auto const own = action;
        own();
    }

    std::string name_;
    std::vector<std::string> own_;
};

//! A view with the folders a and b, and c in b.
class SelectionFixture : public testing::Test {
protected:
    using FreeFolder = zbIBrowserViewItemFreeFolder;

    explicit SelectionFixture(zbIBrowserView& (*make)(RecordingHost&, char const*))
        : make_(make)
        , view(make(host, "view"))
        , manager(*view.GetSelectionManager())
        , a(MakeFolder(Root(), "a"))
        , b(MakeFolder(Root(), "b"))
        , c(MakeFolder(b, "c")) {
        signals.Discard();
    }

    [[nodiscard]] zbIBrowserView& Another() { return make_(host, "another"); }
    [[nodiscard]] FreeFolder& Root() const { return *view.GetRootFreeFolder(); }
    FreeFolder& MakeFolder(FreeFolder& parent, char const* name) {
        EXPECT_TRUE(view.CreateFreeFolder(&parent, name));
        return *parent.FindChildFreeFolder(name);
    }
    //! Selects without a trace.
    void Select(Items const& items) {
        manager.UpdateSelection(items, true, false);
        signals.Discard();
    }
    [[nodiscard]] std::string Selected() {
        Items items;
        auto const answer = manager.GetSelectedViewItems(items);
        EXPECT_EQ(answer, !items.empty());
        return TextOf(items);
    }
    //! Leaves out what the old generation tells the data side.
    void ListenToViewsOnly() {
        signals.Ignore({"DataItemsSelectionChanging", "DataItemsSelectionSummary",
                        "DataItemsGrouped", "SelectionManagerChanged"});
    }

private:
    zbIBrowserView& (*make_)(RecordingHost&, char const*);

protected:
    RecordingHost host;
    zbIBrowserView& view;
    zbIBrowserSelectionManager& manager;
    SignalRecorder signals{host};
    FreeFolder& a;
    FreeFolder& b;
    FreeFolder& c;
};

template <class Generation>
class SelectionTest : public SelectionFixture {
protected:
    SelectionTest()
        : SelectionFixture(&Make) {}

private:
    static zbIBrowserView& Make(RecordingHost& itsHost, char const* name) {
        return Generation::Make(itsHost, name);
    }
};

} // namespace zbtest
