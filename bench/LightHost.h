// SPDX-License-Identifier: MIT
//! \file
//! A data side in memory that costs as little as a data side can.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralDataCtrl.h>
#include <zbBrowserView/host/neutral/zbNeutralDataItemSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralDataSourceSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralManager.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <deque>
#include <memory>
#include <vector>

namespace zbbench {

class Source;

class Item final : public zbNeutralDataItemSimple {
public:
    explicit Item(Source& source)
        : source_(source) {}
    zbIBrowserDataSourceSimple* GetDataSource() const override;

    bool isListed = true;

private:
    Source& source_;
};

//! Never frees an item, so that asking whether it still contains one is a look at a mark.
class Source final : public zbNeutralDataSourceSimple {
public:
    explicit Source(std::size_t count);

    Item* AddItem();
    void TakeOut(Item& item) { item.isListed = false; }
    //! Every item that was ever made.
    std::deque<Item>& Items() { return items_; }
    bool isDirty = false;

    zbIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    char const* GetName() const override { return "source"; }
    bool IsDirty() const override { return isDirty; }
    void ClearDirty(bool dirty) override { isDirty = dirty; }
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override;
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override {
        return static_cast<Item*>(item)->isListed;
    }

private:
    std::deque<Item> items_;
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
    zbBrowserView& NewView(zbBrowserViewCtrl& controller);
};

//! A view whose data control offers one source of `count` items; no list has been made yet.
struct LightHost {
    explicit LightHost(std::size_t count);

    void Connect() { view.CreateList(view.GetRootFreeFolder(), &source, false); }
    void Disconnect() { view.DeleteList(view.GetRootFreeFolder(), &source); }

    Source source;
    DataCtrl dataCtrl;
    Manager manager;
    std::unique_ptr<zbBrowserViewCtrl> controller;
    zbBrowserView& view;
};

} // namespace zbbench
