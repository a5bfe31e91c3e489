// SPDX-License-Identifier: MIT
// The neutral classes: what a host gets that derives from them and writes nothing but the rest.
#include <zbBrowserView/host/neutral/zbNeutralDataCtrl.h>
#include <zbBrowserView/host/neutral/zbNeutralDataItemSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralDataProperty.h>
#include <zbBrowserView/host/neutral/zbNeutralDataSourceSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralManager.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

class Item final : public zbNeutralDataItemSimple {
public:
    explicit Item(zbIBrowserDataSourceSimple& source)
        : source_(source) {}
    zbIBrowserDataSourceSimple* GetDataSource() const override { return &source_; }

private:
    zbIBrowserDataSourceSimple& source_;
};

class Source final : public zbNeutralDataSourceSimple {
public:
    zbIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    char const* GetName() const override { return "part"; }
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override {
        for (auto& item : items_)
            out.push_back(&item);
        return true;
    }
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override {
        return item == &items_[0] || item == &items_[1];
    }
    Item& First() { return items_[0]; }

private:
    std::array<Item, 2> items_{Item(*this), Item(*this)};
};

class DataCtrl final : public zbNeutralDataCtrl {
public:
    explicit DataCtrl(Source& source)
        : source_(source) {}
    char const* GetName() const override { return "data"; }
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const*) override { return &source_; }

private:
    Source& source_;
};

class Manager final : public zbNeutralManager {
public:
    using zbBrowserManager::CreateView;
};

class Property final : public zbNeutralDataProperty {};

TEST(NeutralHost, ShowsItsItemsInAList) {
    // given
    Source source;
    DataCtrl dataCtrl(source);
    Manager manager;
    std::unique_ptr<zbBrowserViewCtrl> const controller(CreateBrowserViewCtrl(&manager));
    Manager::CreateView(*controller, "view", false);
    auto& view = *controller->OLD_FindView("view");
    view.SetDataCtrl(&dataCtrl);

    // when
    view.DataSourceConnect(&source);
    auto const created = view.CreateList(view.GetRootFreeFolder(), &source, false);

    // then
    std::vector<zbIBrowserViewItem*> rows;
    EXPECT_TRUE(created);
    EXPECT_TRUE(view.GetChildren(rows, view.GetRootFreeFolder()));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0]->GetDataItemSimple(), &source.First());
}

TEST(NeutralHost, ASourceIsCalledByItsNameAndIsOfItsOwnTypeOnly) {
    Source source;
    Source other;

    EXPECT_STREQ(source.GetListCaption(), "part");
    EXPECT_STREQ(source.GetTypeName(), "part");
    EXPECT_TRUE(source.IsOfType(&source));
    EXPECT_FALSE(source.IsOfType(&other));
    EXPECT_NE(source.GetTypeId(), other.GetTypeId());
}

TEST(NeutralHost, ASourceDecidesNoOrderAndHasNoProperties) {
    Source source;
    int order = 7;

    EXPECT_FALSE(source.CompareByName(&source.First(), &source.First(), order));
    EXPECT_FALSE(source.CompareById(&source.First(), &source.First(), order));
    EXPECT_FALSE(source.CompareBySortProperty(&source.First(), &source.First(), order));
    EXPECT_EQ(order, 7);
    EXPECT_EQ(source.FindDataProperty("name"), nullptr);
    EXPECT_FALSE(source.IsDirty());
}

TEST(NeutralHost, APropertyHasNoValueOfAnyType) {
    Source source;
    Property property;
    zbString text("as it was");
    int number = 7;

    EXPECT_FALSE(property.GetString(&source.First(), nullptr, text));
    EXPECT_FALSE(property.GetInteger(&source.First(), nullptr, number));
    EXPECT_EQ(property.GetTextPointer(&source.First(), nullptr), nullptr);
    EXPECT_STREQ(text.c_str(), "as it was");
    EXPECT_EQ(number, 7);
}

TEST(NeutralHost, AManagerHasSignalsAndNothingElse) {
    Manager manager;
    zbString result("left over");

    manager.EvaluateScript("1 + 1", result);

    EXPECT_NE(manager.GetSignalManager(), nullptr);
    EXPECT_NE(manager.GetDataSignalManager(), nullptr);
    EXPECT_EQ(manager.GetBrowserPanel(), nullptr);
    EXPECT_EQ(manager.GetGuiMapManager(), nullptr);
    EXPECT_TRUE(result.empty());
}

} // namespace
