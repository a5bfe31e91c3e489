// SPDX-License-Identifier: MIT
//! \file
//! The view properties of one view.
#pragma once

#include "containers/PointerList.h"
#include "presentation/properties/ViewPropertyBase.h"
#include "view/ViewLifetime.h"

#include <array>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zbbrowser::detail {

enum class PropertyKind { Plain, DefaultName, DefaultIcon };

//! The properties that stand in every view, in the order of their creation.
enum class DefaultProperty { Name, IconName, BoldText, ItalicText };

//! In what the generations differ.
struct ConnectionRules {
    bool replaces;     //!< A second connection of a source takes the place of the first
    bool missesAbsent; //!< To take away a connection that is not there is a failure
};

//! The properties of a view in the order of their creation. It makes and owns them, those that were
//! deleted included: their pointers stay valid as long as the list.
//!
//! What is asked about a property is answered for those in the list; any other pointer is compared
//! and not followed. All but CreateDefaults and CopyTo are O(1) in the number of properties.
class PropertyList : public Retirable {
public:
    ~PropertyList() override;

    //! The exact name, case included. Null: there is none.
    zbIBrowserViewProperty* Find(std::string_view name) const;
    //! Find for one that stands in every view; faster.
    zbIBrowserViewProperty* Default(DefaultProperty which) const {
        return defaults_[static_cast<std::size_t>(which)];
    }
    //! Requires: `visit` does not change the list.
    template <class Visit>
    void ForEach(Visit visit) const {
        listed_.ForEach(visit);
    }
    //! Replaces `out` by the properties in their order.
    void CopyTo(std::vector<zbIBrowserViewProperty*>& out) const;

    //! Adds a plain property. Nothing for null and for a name that there is.
    void Create(char const* name);
    //! Adds those of the four default properties that are missing, and gives each its type.
    void CreateDefaults();
    //! It stands in the list and has the name of a default property.
    bool IsDefault(zbIBrowserViewProperty const* property) const;
    //! Takes a property out, with its connections. False for one that is not in the list.
    //! Requires: not IsDefault(property).
    bool Remove(zbIBrowserViewProperty* property);
    //! Nothing for an unknown name and for a number that is no type.
    void SetType(std::string_view name, ZBBROWSER_DATA_TYPE type);

    //! \name Connections and scripts
    //! False for a property that is not in the list.
    //! \{
    bool Connect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source,
                 zbIBrowserDataProperty* dataProperty);
    //! Makes the text its set script and takes its get script away.
    bool Connect(zbIBrowserViewProperty* property, char const* script);
    bool Disconnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source);
    //! \}

    //! What a refused operation leaves as the error of its view.
    virtual zbString ErrorText() const { return {}; }

protected:
    explicit PropertyList(ConnectionRules rules)
        : rules_(rules) {}

private:
    virtual std::unique_ptr<ViewPropertyBase> Make(PropertyKind kind, zbString const& name) = 0;

    void Create(PropertyKind kind, zbString const& name);
    ViewPropertyBase* FindListed(zbIBrowserViewProperty const* property) const;

    ConnectionRules const rules_;
    std::vector<std::unique_ptr<ViewPropertyBase>> owned_; // Listed or deleted
    PointerList<zbIBrowserViewProperty> listed_;
    std::unordered_map<std::string_view, ViewPropertyBase*> byName_; // Listed; keys are their names
    std::array<ViewPropertyBase*, 4> defaults_{};                    // Null before they are made
};

} // namespace zbbrowser::detail
