// SPDX-License-Identifier: MIT
//! \file
//! The data behind the selection of a new view, whose folders show no data yet: rows that say that
//! they are of the view stand in for those that it does not make.
#include "selection/SelectionManager.h"
#include "SelectionTest.h"
#include "support/ItemDoubles.h"
#include "view/DataOfItems.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>
#include <array>
#include <deque>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

//! Takes each row that says that it is one of the view.
class TrustingContext final : public zbbrowser::detail::NewViewContext {
public:
    using NewViewContext::NewViewContext;
    [[nodiscard]] bool Owns(zbIBrowserViewItem const* item) const override {
        return item != nullptr && item->GetView() == &NewView();
    }
};

class Node final : public ItemDouble {
public:
    Node(zbIBrowserView* itsView, zbIBrowserDataItem* data)
        : ItemDouble(itsView)
        , data_(data) {}
    [[nodiscard]] zbIBrowserDataItem* GetDataItem() const override { return data_; }
    [[nodiscard]] bool IsDataLeaf() const override { return false; }
    [[nodiscard]] bool IsDataNode() const override { return true; }

private:
    zbIBrowserDataItem* data_;
};

class NewSelectionData : public testing::Test {
protected:
    //! A selected row of a new item with this value of "size".
    void SelectRow(RecordingSource& source, char const* name, zbVariant value) {
        SelectRow(source.Add(name).Set("size", std::move(value)));
    }
    void SelectRow(RecordingItem& item) {
        auto& node = nodes_.emplace_back(&view, &item);
        manager.UpdateSelection({&node}, true, false);
    }
    //! Two selected rows of part and one of tool, in the order of the addresses of their items.
    std::array<RecordingItem*, 3> SelectThree() {
        std::array items{&part.Add("bolt"), &part.Add("nut"), &tool.Add("saw")};
        std::sort(items.begin(), items.end(), std::less<>());
        for (auto* const item : items)
            SelectRow(item->Set("size", item->Name().c_str()));
        Connect(part);
        Connect(tool);
        return items;
    }
    //! The rows are none of the view any more.
    void TakeAllRowsOut() {
        for (auto& node : nodes_)
            node.view = nullptr;
    }
    void GiveTheViewUp() {
        context_.Lifetime().GiveUp(nullptr, [](void*) {});
    }
    //! The values that were read, by the names of their items.
    [[nodiscard]] std::vector<std::string> ValuesRead() {
        host.calls.Record(true);
        static_cast<void>(Text());
        auto lines = host.calls.take();
        std::erase_if(lines, [](std::string const& line) { return !line.starts_with("size.Get"); });
        return lines;
    }
    [[nodiscard]] Items Rows() {
        Items rows;
        manager.GetSelectedViewItems(rows);
        return rows;
    }
    void Connect(RecordingSource& source) {
        view.CreateVPConnect(&property, static_cast<zbIBrowserDataSource*>(&source),
                             &source.Property("size"));
    }
    [[nodiscard]] std::set<zbIBrowserDataItem*> DataOf(Items const& items) const {
        return zbbrowser::detail::DataItemsOf(context_, items);
    }
    [[nodiscard]] std::set<zbIBrowserDataItem*> DataOf(RecordingSource const& source) {
        return zbbrowser::detail::DataItemsOf(context_, Rows(), &source);
    }
    [[nodiscard]] std::string Text() {
        zbString text = "before";
        auto const answer = manager.GetSelectedPropertyText(&property, text);
        EXPECT_EQ(answer, !text.empty());
        return text.c_str();
    }
    [[nodiscard]] std::string TextOf(RecordingSource& source) {
        zbString text = "before";
        auto const answer = manager.GetSelectedPropertyTextOfSource(&source, &property, text);
        return std::string(answer ? "true " : "false ") + text.c_str();
    }

    RecordingHost host;
    zbbrowser::View& view = host.NewView();
    RecordingSource& part = host.Source("part");
    RecordingSource& tool = host.Source("tool");

private:
    std::deque<Node> nodes_;
    TrustingContext context_{view, &host.Controller()};
    zbIBrowserViewProperty& MakeProperty() {
        view.CreateViewProperty("size");
        return *view.FindViewProperty("size");
    }

protected:
    zbbrowser::SelectionManager manager{context_};
    zbIBrowserViewProperty& property = MakeProperty();
};

TEST_F(NewSelectionData, EachKindOfValueIsShownInItsWay) {
    Connect(part);
    std::pair<zbVariant, char const*> const values[] = {
        {zbVariant(true), "true"},    {zbVariant(false), "false"}, {zbVariant(-7), "-7"},
        {zbVariant(1.5), "1.500000"}, {zbVariant("M6"), "M6"},
    };
    for (auto const& [value, expected] : values) {
        manager.ClearAll();
        SelectRow(part, "bolt", value);

        EXPECT_EQ(Text(), expected);
    }
}

TEST_F(NewSelectionData, AValueOfKind4ShowsItsLow32BitsOnly) {
    Connect(part);
    SelectRow(part, "bolt", zbVariant(0x1'0000'0007LL));

    EXPECT_EQ(Text(), "7");
}

TEST_F(NewSelectionData, AValueOfAnUnknownKindGivesNothing) {
    Connect(part);
    zbVariant value("x");
    value.SetKind(99);
    SelectRow(part, "bolt", value);

    EXPECT_EQ(Text(), "");
}

TEST_F(NewSelectionData, ValuesStandInTheOrderOfTheAddressesOfTheirItemsWithABlankBetween) {
    Connect(part);
    SelectRow(part, "bolt", "M6");
    SelectRow(part, "nut", "");
    SelectRow(part, "pin", "long");
    bool const inOrder = std::less<>()(&part["bolt"], &part["pin"]);

    EXPECT_EQ(Text(), inOrder ? "M6 long" : "long M6");
}

TEST_F(NewSelectionData, TheDataControlIsPositionedBeforeTheValueIsRead) {
    Connect(part);
    SelectRow(part, "bolt", "M6");
    host.calls.Record(true);
    host.calls.RecordReaders(true);

    static_cast<void>(Text());

    auto lines = host.calls.take();
    std::erase_if(lines, [](std::string const& line) {
        return line.find("SetCurrentDataItem") == std::string::npos &&
               line.find("GetVariant") == std::string::npos;
    });
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_THAT(lines[0], testing::HasSubstr("SetCurrentDataItem"));
    EXPECT_THAT(lines[1], testing::HasSubstr("GetVariant"));
}

TEST_F(NewSelectionData, ItemsWithoutADataPropertyForTheirSourceArePassedOver) {
    Connect(tool);
    SelectRow(part, "bolt", "M6");
    SelectRow(tool, "saw", "fine");
    host.calls.Record(true);

    EXPECT_EQ(Text(), "fine");

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem saw", "size.GetVariant saw"));
}

TEST_F(NewSelectionData, TheOrderOfTheAddressesIsNotThatOfTheSelection) {
    auto items = std::array{&part.Add("bolt"), &part.Add("nut"), &part.Add("pin")};
    std::sort(items.begin(), items.end(), std::greater<>());
    Connect(part);
    for (auto* const item : items)
        SelectRow(item->Set("size", item->Name().c_str()));

    EXPECT_EQ(Text(), items[2]->Name() + " " + items[1]->Name() + " " + items[0]->Name());
}

TEST_F(NewSelectionData, AnItemWithTwoRowsHasOneValue) {
    auto& bolt = part.Add("bolt").Set("size", "M6");
    Connect(part);
    SelectRow(bolt);
    SelectRow(bolt);

    EXPECT_EQ(Text(), "M6");
}

TEST_F(NewSelectionData, WithoutADataControlThereIsNoText) {
    Connect(part);
    SelectRow(part, "bolt", "M6");
    view.SetDataCtrl(nullptr);

    EXPECT_EQ(Text(), "");
}

TEST_F(NewSelectionData, NullIsNoPropertyAndHasNoText) {
    SelectRow(part, "bolt", "M6");
    zbString text = "before";

    EXPECT_FALSE(manager.GetSelectedPropertyText(nullptr, text));
    EXPECT_EQ(text, "");
}

TEST_F(NewSelectionData, TheTextOfASourceLeavesTheItemsOfOthersOut) {
    Connect(part);
    Connect(tool);
    SelectRow(part, "bolt", "M6");
    SelectRow(tool, "saw", "fine");

    EXPECT_EQ(TextOf(part), "true M6");
    EXPECT_EQ(TextOf(tool), "true fine");
}

TEST_F(NewSelectionData, TheTextOfASourceWithoutADataPropertyIsFalseAtOnce) {
    SelectRow(part, "bolt", "M6");

    EXPECT_EQ(TextOf(part), "false before");
}

// A host that takes things away while it is asked

TEST_F(NewSelectionData, ARowThatGoesWhileAnotherValueIsReadHasNoValue) {
    auto const items = SelectThree();
    host.calls.On("SetCurrentDataItem", "data", [this] { TakeAllRowsOut(); });

    EXPECT_EQ(Text(), items[0]->Name());
}

TEST_F(NewSelectionData, NoValueIsReadIfTheControlEndsItsConnection) {
    Connect(part);
    SelectRow(part, "bolt", "M6");
    host.calls.On("SetCurrentDataItem", "data", [this] {
        view.DeleteVPConnect(&property, static_cast<zbIBrowserDataSource*>(&part));
    });

    EXPECT_THAT(ValuesRead(), IsEmpty());
}

TEST_F(NewSelectionData, NoValueIsReadOnceTheControlHasDeletedTheView) {
    SelectThree();
    host.calls.On("SetCurrentDataItem", "data", [this] { GiveTheViewUp(); });

    EXPECT_THAT(ValuesRead(), IsEmpty());
    EXPECT_EQ(host.calls.Count("SetCurrentDataItem"), 1U);
}

TEST_F(NewSelectionData, ARowThatGoesWhileAnotherIsAskedForItsSourceIsNotAsked) {
    auto const items = SelectThree();
    host.calls.On("GetDataSource", items[0]->Name(), [this] { TakeAllRowsOut(); });
    std::set<zbIBrowserDataSource*> sources;

    manager.GetSelectedDataSources(sources, true);

    EXPECT_THAT(sources, ElementsAre(items[0]->source));
    EXPECT_EQ(host.calls.Count("GetDataSource"), 1U);
}

TEST_F(NewSelectionData, NoRowIsAskedForItsSourceOnceTheViewHasGone) {
    auto const items = SelectThree();
    host.calls.On("GetDataSource", items[0]->Name(), [this] { GiveTheViewUp(); });
    std::set<zbIBrowserDataSource*> sources;

    manager.GetSelectedDataSources(sources, true);

    EXPECT_EQ(host.calls.Count("GetDataSource"), 1U);
}

TEST_F(NewSelectionData, DataIsToldApartBySourceOfRowsThatAreStillThereOnly) {
    auto const items = SelectThree();
    EXPECT_THAT(DataOf(tool), ElementsAre(&tool["saw"]));
    host.calls.ForgetCounts();
    host.calls.On("GetDataSource", items[0]->Name(), [this] { TakeAllRowsOut(); });

    EXPECT_LE(DataOf(part).size(), 1U);
    EXPECT_EQ(host.calls.Count("GetDataSource"), 1U);
}

TEST_F(NewSelectionData, TheSourcesOfSelectedRowsAreGiven) {
    SelectRow(part, "bolt", "M6");
    SelectRow(part, "nut", "M6");
    std::set<zbIBrowserDataSource*> sources{nullptr};

    EXPECT_TRUE(manager.GetSelectedDataSources(sources, true));
    EXPECT_THAT(sources, ElementsAre(&part));

    manager.ClearAll();
    EXPECT_FALSE(manager.GetSelectedDataSources(sources, true));
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(NewSelectionData, NoItemsHaveNoDataAndTheAnswerIsFalse) {
    std::set<zbIBrowserDataItem*> items{nullptr};
    std::set<zbIBrowserDataSource*> sources{nullptr};

    EXPECT_FALSE(view.GetDataItemsFromViewItems({}, items, true));
    EXPECT_FALSE(view.GetDataSourcesFromViewItems({}, sources, true));

    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(NewSelectionData, ItemsThatAreNotOfTheViewAreNotFollowedAndTheAnswerIsTrue) {
    Node foreign(&view, &part.Add("bolt"));
    Items const given{&foreign, nullptr, reinterpret_cast<zbIBrowserViewItem*>(0x1235)};
    std::set<zbIBrowserDataItem*> items{nullptr};
    std::set<zbIBrowserDataSource*> sources{nullptr};

    EXPECT_TRUE(view.GetDataItemsFromViewItems(given, items, true));
    EXPECT_TRUE(view.GetDataSourcesFromViewItems(given, sources, true));

    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_EQ(foreign.timesAskedForView, 0);
}

TEST_F(NewSelectionData, RowsOfAnotherViewAndRowsWithoutDataHaveNoDataHere) {
    Node own(&view, &part.Add("nut"));
    Node foreign(&host.View("another"), &part.Add("bolt"));
    Node bare(&view, nullptr);

    EXPECT_THAT(DataOf({&foreign, nullptr, &own, &bare}), ElementsAre(&part["nut"]));
}

} // namespace
} // namespace zbtest
