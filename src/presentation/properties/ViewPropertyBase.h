// SPDX-License-Identifier: MIT
//! \file
//! What the view properties of both generations share.
#pragma once

#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <map>

namespace zbbrowser::detail {

class ViewContext;

//! Name, type, mark, scripts and connections of a view property, and the neutral answer to each
//! read and write. A generation overrides what it offers.
class ViewPropertyBase : public zbIBrowserViewProperty {
public:
    ViewPropertyBase(ViewContext& context, zbString name);
    ViewPropertyBase(ViewPropertyBase const&) = delete;
    ViewPropertyBase& operator=(ViewPropertyBase const&) = delete;
    //! Nothing is sorted by it any more.
    virtual ~ViewPropertyBase();

    //! \name zbIBrowserViewProperty
    //! \{
    char const* GetName() const final { return name_.c_str(); }
    char const* GetReservedTextA() const final { return ""; }
    char const* GetReservedTextB() const final { return ""; }
    bool IsAvailable() const final { return true; }
    bool GetFlag() const final { return flag_; }
    void SetFlag(bool flag) final { flag_ = flag; }
    bool SetScripts(char const* setScript, char const* getScript,
                    char const* linkedProperty = nullptr) override;
    void SetTextByScript(zbIBrowserViewItem*, zbString const&) override {}
    zbIBrowserView* GetView() const final;
    bool GetValue(zbIBrowserViewItem*, zbVariant&) override { return false; }
    bool SetValue(zbIBrowserViewItem*, zbVariant) override { return false; }
    ZBBROWSER_DATA_TYPE GetDataType() const final { return type_; }
    bool SetDataType(ZBBROWSER_DATA_TYPE type) final;
    bool IsReadable() const final { return true; }
    bool IsWritable() const final { return true; }
    bool GetConnections(std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*>&) override {
        return false;
    }
    bool GetConnections(std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>&) override {
        return false;
    }
    zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSourceSimple*) override {
        return nullptr;
    }
    zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSource*) override { return nullptr; }
    bool GetIntegerValue(zbIBrowserViewItem*, int&) override { return false; }
    bool GetUnsignedValue(zbIBrowserViewItem*, unsigned&) override { return false; }
    bool GetBooleanValue(zbIBrowserViewItem*, bool&) override { return false; }
    char const* GetTextPointer(zbIBrowserViewItem*) override { return nullptr; }
    bool GetStringValue(zbIBrowserViewItem* item, zbIBrowserDataItem*, zbString& out) final {
        return GetStringValue(item, out);
    }
    bool GetStringValue(zbIBrowserViewItem*, zbString&) override { return false; }
    bool GetDoubleValue(zbIBrowserViewItem*, double&) override { return false; }
    bool SetIntegerValue(zbIBrowserViewItem*, int) override { return false; }
    bool SetBooleanValue(zbIBrowserViewItem*, bool) override { return false; }
    bool GetDisplayValue(zbIBrowserViewItem*, zbString&) override { return false; }
    //! \}

    //! \name Connections
    //! Sources are compared and not followed.
    //! \{
    //! A source that has a connection gets the new one if `replaces`, and keeps its own otherwise.
    void Connect(zbIBrowserDataSource* source, zbIBrowserDataProperty* property, bool replaces);
    //! False if there was none.
    bool Disconnect(zbIBrowserDataSource* source);
    void DisconnectAll() { connections_.clear(); }
    //! \}

protected:
    using Connections = std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>;

    Connections const& AllConnections() const { return connections_; }
    //! Null: for null and without a connection.
    zbIBrowserDataProperty* Connected(zbIBrowserDataSource* source) const {
        auto const found = source == nullptr ? connections_.end() : connections_.find(source);
        return found == connections_.end() ? nullptr : found->second;
    }

    bool HasGetScript() const { return !getScript_.empty(); }
    bool HasSetScript() const { return !setScript_.empty(); }
    zbString const& GetScript() const { return getScript_; }
    zbString const& SetScript() const { return setScript_; }

    //! The text that a script gives; empty if it fails.
    //! Requires: an open CallScope, if this property is touched afterwards.
    zbString RunScript(zbString const& script, zbString const& argument = {}) const;

private:
    ViewContext& context_;
    zbString const name_;
    ZBBROWSER_DATA_TYPE type_ = ZBBROWSER_DATA_TYPE_NOT_SET;
    Connections connections_; // Neither sources nor properties are owned
    bool flag_ = false;
    zbString setScript_;
    zbString getScript_;
};

} // namespace zbbrowser::detail
