// SPDX-License-Identifier: MIT
//! \file
//! What the tests of view properties share.
#pragma once

#include "support/Generations.h"
#include "support/RecordingHost.h"
#include "support/RowDoubles.h"
#include "support/Thrown.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace zbtest {

using Names = std::vector<std::string>;
using Lines = std::vector<std::string>;

//! What a read that gives a text answers: the text, or "no" if it answers false.
[[nodiscard]] inline std::string StringOf(zbIBrowserViewProperty& property,
                                          zbIBrowserViewItem* item) {
    zbString out;
    return property.GetStringValue(item, out) ? out.c_str() : "no";
}

//! The same for GetValue.
[[nodiscard]] inline std::string ValueOf(zbIBrowserViewProperty& property,
                                         zbIBrowserViewItem* item) {
    zbVariant out;
    return property.GetValue(item, out) ? ToText(out).c_str() : "no";
}

//! A host with one view of a generation. What the host is asked is written down, scripts as
//! "panel.GetStringFromScript script ( argument )".
template <class Generation>
class PropertiesTest : public testing::Test {
protected:
    using View = typename Generation::View;
    using Source = typename Generation::Source;
    using Connections = std::map<Source*, zbIBrowserDataProperty*>;

    RecordingHost host;
    View& view = Generation::Make(host, "view");

    PropertiesTest() { host.calls.Record(true); }

    zbIBrowserViewProperty& Property(char const* name) {
        view.CreateViewProperty(name);
        return *view.FindViewProperty(name);
    }

    zbIBrowserViewProperty& Default(char const* name) const { return *view.FindViewProperty(name); }

    zbIBrowserViewItemFreeFolder& Folder(char const* name,
                                         zbIBrowserViewItemFreeFolder* parent = nullptr) {
        auto& owner = parent == nullptr ? *view.GetRootFreeFolder() : *parent;
        EXPECT_TRUE(view.CreateFreeFolder(&owner, name));
        return *owner.FindChildFreeFolder(name);
    }

    [[nodiscard]] Names PropertyNames() const {
        std::vector<zbIBrowserViewProperty*> properties;
        EXPECT_TRUE(view.GetViewPropertyList(properties));
        Names names;
        names.reserve(properties.size());
        for (auto const* const property : properties) {
            names.emplace_back(property->GetName());
        }
        return names;
    }

    [[nodiscard]] static Connections ConnectionsOf(zbIBrowserViewProperty& property) {
        Connections connections;
        EXPECT_TRUE(property.GetConnections(connections));
        return connections;
    }

    //! The elements of the default column.
    [[nodiscard]] std::vector<zbIBrowserStyleElement*> Elements() const {
        std::vector<zbIBrowserStyle*> styles;
        std::vector<zbIBrowserStyleElement*> elements;
        EXPECT_TRUE(view.GetDefaultColumn()->GetStyles(styles));
        EXPECT_TRUE(styles.at(0)->GetElements(elements));
        return elements;
    }

    //! The text of a default property for an item, from the read that the generation offers.
    [[nodiscard]] static std::string TextOf(zbIBrowserViewProperty& property,
                                            zbIBrowserViewItem* item) {
        if constexpr (std::is_same_v<Generation, OldGeneration>) {
            return StringOf(property, item);
        } else {
            return ValueOf(property, item);
        }
    }
};

//! A host with an old view that shows the rows of the source "part" in the folder "a".
class OldPropertiesTest : public PropertiesTest<OldGeneration> {
protected:
    RecordingSource& part = host.Source("part").Items({"bolt_1", "nut_2"});
    zbIBrowserViewItemFreeFolder& folder = Folder("a");

    OldPropertiesTest() {
        EXPECT_TRUE(view.DataSourceConnect(&part));
        EXPECT_TRUE(view.CreateList(&folder, &part, false));
        static_cast<void>(host.calls.take());
    }

    [[nodiscard]] zbIBrowserViewItem* Row(std::size_t index = 0) const {
        std::vector<zbIBrowserViewItem*> rows;
        EXPECT_TRUE(view.GetChildren(rows, &folder));
        return rows.at(index);
    }

    //! A property that reads the values of that name from the items of "part".
    zbIBrowserViewProperty& Connected(char const* name) {
        auto& property = Property(name);
        EXPECT_TRUE(view.CreateVPConnect(&property, &part, &part.Property(name)));
        return property;
    }
};

//! A host with a new view and a row double for the item "bolt_1" of the source "part".
class NewPropertiesTest : public PropertiesTest<NewGeneration> {
protected:
    RecordingSource& part = host.Source("part").Items({"bolt_1", "nut_2"});
    RecordingItem& bolt = part["bolt_1"];
    NodeDouble row{&view, &bolt};

    zbIBrowserViewProperty& Connected(char const* name) {
        auto& property = Property(name);
        EXPECT_TRUE(view.CreateVPConnect(&property, &part, &part.Property(name)));
        return property;
    }
};

} // namespace zbtest
