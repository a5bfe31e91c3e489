// SPDX-License-Identifier: MIT
//! \file
//! The styles of one column: what both generations share.
#pragma once

#include "presentation/styles/zbBrowserStyle.h"

#include <zbBrowserView/zbIBrowserStyleManager.h>

#include <map>
#include <unordered_map>
#include <vector>

namespace zbbrowser::detail {

class ViewContext;

//! A style manager but for what depends on the items and sources of its generation.
//!
//! The styles themselves belong to the StyleShelf of the view, so that they may leave the list and
//! stay valid.
class StyleManagerBase : public zbIBrowserStyleManager {
public:
    StyleManagerBase(StyleManagerBase const&) = delete;
    StyleManagerBase& operator=(StyleManagerBase const&) = delete;
    ~StyleManagerBase() override;

    zbIBrowserViewColumn* GetColumn() const final { return &column_; }
    bool CreateStyle(zbString const& name) override;
    bool DeleteStyle(zbIBrowserStyle* style) override;
    zbIBrowserStyle* FindStyle(zbString const& name) const override;
    bool GetStyles(std::vector<zbIBrowserStyle*>& out) const override;
    bool AddFolderStyle(zbIBrowserViewItem* folder) override;
    bool RemoveFolderStyles(zbIBrowserViewItem* folder) override;
    zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewItem* item) final;
    bool DeleteStyleElement(zbIBrowserStyleElement* element) override;
    bool SetCurrentStyle(zbIBrowserStyle* style) override;
    void OnViewPropertyDeleted(zbIBrowserViewProperty* property) override;
    void OnGuiMapDeleted(zbString const& name) override;

    //! Lets go of a style that is being destroyed.
    void Forget(zbBrowserStyle& style);
    //! Forgets the styles of a folder that is going; its address may come again.
    void OnFolderGone(zbIBrowserViewItem const& folder) { folderStyles_.erase(&folder); }

protected:
    //! Makes the default style if the column is the default one, which must be able to tell.
    StyleManagerBase(zbIBrowserViewColumn& column, ViewContext& context);

    ViewContext& Context() const { return context_; }

    //! Takes a style of this view into the list and makes it current.
    bool Add(zbIBrowserStyle* style);
    bool DeleteByName(char const* name);
    //! False always.
    bool RemoveFromFolders(zbBrowserStyle* style);
    //! \return false always
    bool SetSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source, bool flag);

    //! It is a free folder of this view. Compares the pointer only.
    virtual bool IsFreeFolder(zbIBrowserViewItem const* item) const = 0;
    //! The source of a row's data. May be null.
    virtual zbIBrowserDataSource* SourceOf(zbIBrowserViewItem const& row) const = 0;
    //! The source among those that the folder shows. Null: it is not.
    //! Requires: IsFreeFolder.
    virtual zbIBrowserDataSource* FindSource(zbIBrowserViewItem const& folder,
                                             zbIBrowserDataSource& source) const = 0;
    //! Marks the source dirty and has the dirty lists of the view drawn again.
    virtual void Redraw(zbIBrowserDataSource& source) = 0;

private:
    using Styles = std::vector<zbBrowserStyle*>;
    using Sources = std::unordered_map<zbIBrowserDataSource const*, bool>;
    //! In the order of addresses, the last style that claims a source being the one that gets it.
    using FolderStyles = std::map<zbBrowserStyle*, Sources>;

    void CreateDefaultStyle();
    bool IsTaken(zbString const& name);
    //! False, and the same as before, if there is no style or it is the default one.
    bool BeginDeletion(zbIBrowserStyle const* listed);
    zbBrowserStyle* Listed(zbIBrowserStyle const* style) const;
    zbBrowserStyle* Named(zbString const& name) const;
    void TakeOut(zbBrowserStyle* style);
    zbBrowserStyle* StyleOf(zbIBrowserViewItem& item) const;
    zbBrowserStyle* StyleOfRow(zbIBrowserViewItem const& row) const;
    //! The sources for which a folder has the current style. Null: it does not have it.
    Sources* CurrentSources(zbIBrowserViewItem const* folder);
    template <class Visit>
    void ForEachElement(Visit visit) const;

    std::unordered_map<zbIBrowserViewItem const*, FolderStyles> folderStyles_;
    zbBrowserStyle* default_ = nullptr; // Null: not the default column, or the host deleted it
    zbBrowserStyle* current_ = nullptr; // Null: no style
    Styles styles_;                     // In order of creation
    Styles former_;                     // Taken out, and still pointing here
    zbIBrowserViewColumn& column_;
    bool const isDefault_; // The column is the default one
    ViewContext& context_;
};

} // namespace zbbrowser::detail
