// SPDX-License-Identifier: MIT
//! \file
//! A view property of a new view.
#pragma once

#include "presentation/properties/FolderTexts.h"
#include "presentation/properties/ViewPropertyBase.h"

class zbIBrowserDataCtrl;

namespace zbbrowser {

namespace detail {
class NewViewContext;
}

//! Reads and writes values of any kind, after it has told the data control which row is meant.
class ViewProperty : public detail::ViewPropertyBase {
public:
    ViewProperty(detail::NewViewContext& context, zbString const& name);

    //! \name zbIBrowserViewProperty
    //! \{
    using ViewPropertyBase::GetConnections;
    using ViewPropertyBase::GetDataProperty;
    bool SetScripts(char const* setScript, char const* getScript, char const* linkedProperty) final;
    bool GetValue(zbIBrowserViewItem* item, zbVariant& out) override;
    bool SetValue(zbIBrowserViewItem* item, zbVariant value) final;
    bool GetConnections(std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>& out) final;
    zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSource* source) final;
    bool SetBooleanValue(zbIBrowserViewItem* item, bool value) final;
    //! \}

protected:
    //! Tells the view's data control which row is meant. False: it is no row of this view, or the
    //! control has deleted the view.
    bool Position(zbIBrowserViewItem const& item) const;
    //! The source of a row. Null without data or source, and once the question has deleted the
    //! view.
    zbIBrowserDataSource* SourceOf(zbIBrowserViewItem const& row) const;

    detail::NewViewContext& Context() const { return context_; }

private:
    bool IsRow(zbIBrowserViewItem const& item) const;
    bool Position(zbIBrowserDataCtrl* ctrl, zbIBrowserViewItem const& row) const;

    detail::NewViewContext& context_;
    zbIBrowserViewProperty* linked_ = nullptr; // Not owned; of the same list, and so as old
};

//! What the two default properties have in common that show a text for folders, too.
class ViewPropertyDefaultText : public ViewProperty {
public:
    //! A get script is run for any item, null included.
    //! Failure: the name throws "Null pointer hit" for a group that is not in its folder.
    bool GetValue(zbIBrowserViewItem* item, zbVariant& out) final;

protected:
    ViewPropertyDefaultText(detail::NewViewContext& context, zbString const& name,
                            detail::DefaultText kind);

private:
    bool GetFolderValue(zbIBrowserViewItem const& item, zbVariant& out) const;
    bool GetGroupValue(zbIBrowserViewItem const& item, zbVariant& out) const;
    bool GetRowValue(zbIBrowserViewItem const& item, zbVariant& out) const;

    detail::DefaultText const kind_;
};

class ViewPropertyDefaultName final : public ViewPropertyDefaultText {
public:
    ViewPropertyDefaultName(detail::NewViewContext& context, zbString const& name)
        : ViewPropertyDefaultText(context, name, detail::DefaultText::Name) {}
};

class ViewPropertyDefaultIcon final : public ViewPropertyDefaultText {
public:
    ViewPropertyDefaultIcon(detail::NewViewContext& context, zbString const& name)
        : ViewPropertyDefaultText(context, name, detail::DefaultText::Icon) {}
};

} // namespace zbbrowser
