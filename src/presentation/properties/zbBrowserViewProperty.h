// SPDX-License-Identifier: MIT
//! \file
//! A view property of an old view.
#pragma once

#include "presentation/properties/FolderTexts.h"
#include "presentation/properties/ViewPropertyBase.h"

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>

class zbIBrowserDataItemSimple;

namespace zbbrowser::detail {
class OldViewContext;
}

//! Reads and writes typed values. It does not look at the view to which an item belongs, except
//! that the path of a folder of another view counts as empty.
class zbBrowserViewProperty : public zbbrowser::detail::ViewPropertyBase,
                              public zbBrowserErrorReporter {
public:
    using OldViewContext = zbbrowser::detail::OldViewContext;
    using ViewPropertyBase = zbbrowser::detail::ViewPropertyBase;

    zbBrowserViewProperty(OldViewContext& context, zbString const& name);

    //! \name zbIBrowserViewProperty
    //! \{
    using ViewPropertyBase::GetConnections;
    using ViewPropertyBase::GetDataProperty;
    using ViewPropertyBase::GetStringValue;
    void SetTextByScript(zbIBrowserViewItem* item, zbString const& text) final;
    bool GetConnections(std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*>& out) final;
    zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSourceSimple* source) final;
    bool GetIntegerValue(zbIBrowserViewItem* item, int& out) final;
    bool GetUnsignedValue(zbIBrowserViewItem* item, unsigned& out) final;
    bool GetBooleanValue(zbIBrowserViewItem* item, bool& out) final;
    char const* GetTextPointer(zbIBrowserViewItem* item) final;
    bool GetStringValue(zbIBrowserViewItem* item, zbString& out) override;
    bool GetDoubleValue(zbIBrowserViewItem* item, double& out) final;
    bool SetIntegerValue(zbIBrowserViewItem* item, int value) final;
    bool SetBooleanValue(zbIBrowserViewItem* item, bool value) final;
    bool GetDisplayValue(zbIBrowserViewItem* item, zbString& out) override;
    //! \}

protected:
    //! Where the value of an item is found. What there is not is null.
    struct Cell {
        zbIBrowserDataItemSimple* data = nullptr;
        zbIBrowserDataItemSimple* parent = nullptr;
        zbIBrowserDataSourceSimple* source = nullptr;
        zbIBrowserDataProperty* property = nullptr;
    };
    Cell CellOf(zbIBrowserViewItem const* item) const;

    OldViewContext& Context() const { return context_; }

private:
    template <class T>
    using Reader = bool (zbIBrowserDataProperty::*)(zbIBrowserDataItem*, zbIBrowserDataItem*, T&);
    template <class T>
    using Writer = void (zbIBrowserDataSource::*)(zbIBrowserDataItem*, zbIBrowserDataProperty*, T);

    template <class T>
    bool Read(zbIBrowserViewItem* item, T& out, Reader<T> reader, T (*convert)(zbString&&));
    template <class T>
    bool Write(zbIBrowserViewItem* item, T value, Writer<T> writer);
    zbString RunGetScript(zbIBrowserViewItem const* item) const;

    OldViewContext& context_;
    zbString scriptedText_; // What GetTextPointer points at
};

//! What the two default properties have in common that show a text for folders, too.
class zbBrowserDefaultTextViewProperty : public zbBrowserViewProperty {
public:
    using zbBrowserViewProperty::GetStringValue;
    //! A get script gets an empty argument, whatever the item is.
    bool GetStringValue(zbIBrowserViewItem* item, zbString& out) final;
    bool GetDisplayValue(zbIBrowserViewItem* item, zbString& out) final {
        return GetStringValue(item, out);
    }

protected:
    using DefaultText = zbbrowser::detail::DefaultText;

    zbBrowserDefaultTextViewProperty(OldViewContext& context, zbString const& name,
                                     DefaultText kind);

private:
    DefaultText const kind_;
};

class zbBrowserDefaultNameViewProperty final : public zbBrowserDefaultTextViewProperty {
public:
    zbBrowserDefaultNameViewProperty(OldViewContext& context, zbString const& name)
        : zbBrowserDefaultTextViewProperty(context, name, DefaultText::Name) {}
};

class zbBrowserDefaultIconNameViewProperty final : public zbBrowserDefaultTextViewProperty {
public:
    zbBrowserDefaultIconNameViewProperty(OldViewContext& context, zbString const& name)
        : zbBrowserDefaultTextViewProperty(context, name, DefaultText::Icon) {}
};
