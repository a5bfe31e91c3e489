// SPDX-License-Identifier: MIT
//! \file
//! A data side in memory that costs as little as a data side can.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralDataCtrl.h>
#include <zbBrowserView/host/neutral/zbNeutralDataItemSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralDataProperty.h>
#include <zbBrowserView/host/neutral/zbNeutralDataSourceSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralManager.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace zbbench {

class Source;

//! A part with a name such as "Washer 483920", in upper, lower or mixed case, and a number. Both
//! are drawn by lot from the identity. About one name and one number in two are those of several
//! items.
class Item final : public zbNeutralDataItemSimple {
public:
    //! \param names how many names there are to draw from
    Item(Source& source, std::uint32_t id, std::uint32_t names);
    zbIBrowserDataSourceSimple* GetDataSource() const override;
    char const* GetName() const { return name_.data(); }
    //! Lower case, in two numbers that order as the names do regardless of case.
    std::array<std::uint64_t, 2> GetNameKey() const;
    //! Regardless of case.
    int CompareName(Item const& other) const;
    int GetNumber() const { return number_; }
    std::uint32_t GetId() const { return id_; }
    bool IsDirty() const override { return isDirty; }
    //! Draws the name by another lot than the identity.
    void Rename(std::uint64_t lot, std::uint32_t names);

    bool isListed = true;
    bool isDirty = false;

private:
    std::array<char, 14> name_{}; // Filled up with zeros
    Source& source_;
    int number_;
    std::uint32_t id_;
};

class NameProperty final : public zbNeutralDataProperty {
public:
    bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem*, zbString& out) override;
    char const* GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem*) override;
};

class NumberProperty final : public zbNeutralDataProperty {
public:
    bool GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem*, int& out) override;
};

//! True for every second number.
class FlagProperty final : public zbNeutralDataProperty {
public:
    bool GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem*, bool& out) override;
};

//! Never frees an item, so that asking whether it still contains one is a look at a mark.
class Source final : public zbNeutralDataSourceSimple {
public:
    explicit Source(std::size_t count);

    Item* AddItem();
    void TakeOut(Item& item) { item.isListed = false; }
    void Rename(Item& item) { item.Rename(item.GetId() + names_, names_); }
    //! Every item that was ever made.
    std::deque<Item>& Items() { return items_; }
    bool isDirty = false;
    NameProperty name;
    NumberProperty number;
    FlagProperty flag;
    //! How often it has compared two items.
    std::size_t comparisons = 0;

    zbIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    char const* GetName() const override { return "source"; }
    bool IsDirty() const override { return isDirty; }
    void ClearDirty(bool dirty) override { isDirty = dirty; }
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override;
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override {
        return static_cast<Item*>(item)->isListed;
    }
    //! By number, the only property that it compares by.
    bool CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty*,
                               zbIBrowserDataItem* b, zbIBrowserDataProperty*, int& cmp) override;
    //! Regardless of case.
    bool CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;
    bool CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;

private:
    std::deque<Item> items_;
    std::uint32_t const names_;
};

//! Some items of a source drawn at random, each once; all of them if there are no more than that.
std::vector<Item*> Draw(Source& source, std::size_t count);

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
    zbBrowserView& NewView(zbBrowserViewCtrl& controller);
};

//! A view whose data control offers one source; no list has been made yet.
struct LightView {
    explicit LightView(Source& shown);

    void Connect() { view.CreateList(view.GetRootFreeFolder(), &source, false); }
    void Disconnect() { view.DeleteList(view.GetRootFreeFolder(), &source); }

    Source& source;
    DataCtrl dataCtrl;
    Manager manager;
    std::unique_ptr<zbBrowserViewCtrl> controller;
    zbBrowserView& view;
};

struct OwnSource {
    Source ownSource;
};

//! A view with a source of `count` items of its own.
template <class View>
struct HostOf : private OwnSource, View {
    explicit HostOf(std::size_t count)
        : OwnSource{Source(count)}
        , View(ownSource) {}
};
using LightHost = HostOf<LightView>;

} // namespace zbbench
