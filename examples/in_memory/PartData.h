// SPDX-License-Identifier: MIT
//! \file
//! The smallest data side: one flat source, whose items are kept in memory and change at run time.
//! What this program does not need is answered by the neutral classes that it derives from.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralDataCtrl.h>
#include <zbBrowserView/host/neutral/zbNeutralDataItemSimple.h>
#include <zbBrowserView/host/neutral/zbNeutralDataProperty.h>
#include <zbBrowserView/host/neutral/zbNeutralDataSourceSimple.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace example {

//! An item: it knows its source and its values.
class Part final : public zbNeutralDataItemSimple {
public:
    Part(zbIBrowserDataSourceSimple& source, std::string name)
        : source_(source)
        , name_(std::move(name)) {}

    std::string const& Name() const { return name_; }

    zbIBrowserDataSourceSimple* GetDataSource() const override { return &source_; }
    bool GetProperty(char const* key, zbString& value) override {
        if (std::string_view(key) != "name")
            return false;
        value = name_.c_str();
        return true;
    }

private:
    zbIBrowserDataSourceSimple& source_;
    std::string name_;
};

//! The one property of a part. A view hands in only items of a source that gave it the property,
//! which is why the cast is safe.
class NameProperty final : public zbNeutralDataProperty {
public:
    bool GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                        zbString& out) override {
        return GetString(item, parent, out);
    }
    bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) override {
        out = GetTextPointer(item, parent);
        return true;
    }
    char const* GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem*) override {
        return static_cast<Part*>(item)->Name().c_str();
    }
};

//! A flat source. It owns its items; each keeps its address while it lives.
class PartSource final : public zbNeutralDataSourceSimple {
public:
    explicit PartSource(zbIBrowserDataCtrl& control)
        : control_(control) {}

    Part& Add(std::string name) {
        parts_.push_back(std::make_unique<Part>(*this, std::move(name)));
        return *parts_.back();
    }
    //! Takes an item out of the source. It lives until the returned pointer goes, so that the
    //! views can be told while it can still be asked.
    std::unique_ptr<Part> Take(Part const& part) {
        auto const found = Find(&part);
        auto taken = std::move(*found);
        parts_.erase(found);
        return taken;
    }

    zbIBrowserDataCtrl* GetDataCtrl() override { return &control_; }
    char const* GetName() const override { return "parts"; }
    char const* GetListCaption() const override { return "Parts"; }
    char const* GetTypeName() const override { return "part"; }
    zbIBrowserDataProperty* FindDataProperty(char const* name) override {
        return std::string_view(name) == "name" ? &name_ : nullptr;
    }
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override {
        for (auto const& part : parts_)
            out.push_back(part.get());
        return true;
    }
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override {
        return Find(item) != parts_.end();
    }
    bool CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override {
        cmp = static_cast<Part*>(a)->Name().compare(static_cast<Part*>(b)->Name());
        return true;
    }

private:
    using Parts = std::vector<std::unique_ptr<Part>>;

    //! Compares addresses only: a view may ask about an item that has gone.
    Parts::iterator Find(zbIBrowserDataItemSimple const* item) {
        return std::find_if(parts_.begin(), parts_.end(),
                            [item](auto const& part) { return part.get() == item; });
    }

    zbIBrowserDataCtrl& control_;
    Parts parts_;
    NameProperty name_;
};

//! The data control: names its sources.
class PartDataCtrl final : public zbNeutralDataCtrl {
public:
    PartSource& Parts() { return parts_; }

    char const* GetName() const override { return "memory"; }
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) override {
        return std::string_view(name) == parts_.GetName() ? &parts_ : nullptr;
    }

private:
    PartSource parts_{*this};
};

} // namespace example
