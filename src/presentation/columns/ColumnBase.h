// SPDX-License-Identifier: MIT
//! \file
//! What the columns of both generations share.
#pragma once

#include "presentation/styles/StyleManagerBase.h"
#include "view/ViewLifetime.h"

#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <cstdint>
#include <memory>

namespace zbbrowser::detail {

class ViewContext;

//! A column. The class of its generation gives it its style manager.
class ColumnBase : public zbIBrowserViewColumn, public zbBrowserErrorReporter, public Retirable {
public:
    ~ColumnBase() override;

    zbIBrowserStyleManager* GetStyleManager() const override { return styles_.get(); }
    zbIBrowserView* GetView() const override;
    char const* GetName() const override { return name_.c_str(); }
    char const* GetTitle() const override;
    bool GetStyles(std::vector<zbIBrowserStyle*>& out) const override;
    bool CreateStyle(zbString const& name) override;
    zbIBrowserStyle* FindStyle(zbString const& name) const override;
    bool DeleteStyle(zbIBrowserStyle* style) override;
    bool DeleteStyleElement(zbIBrowserStyleElement* element) override;
    void SetIndex(unsigned index) override { index_ = index; }
    unsigned GetIndex() const override { return index_; }
    void SetPosition(unsigned position) override;
    unsigned GetPosition() const override { return position_; }
    bool SetPopupMenu(char const* name) override;
    zbIBrowserPopupMenu* GetPopupMenu() const override;
    bool IsVisible() const override { return visible_; }
    void SetVisible(bool visible) override { visible_ = visible; }
    bool GetSorting() const override { return sorting_; }
    void SetSorting(bool sorting) override;
    bool GetItalic() const override { return italic_; }
    void SetItalic(bool italic) override;
    bool SetTitle(char const* title) override;
    bool SetFolderDataSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                  bool flag) override;
    bool SetFolderDataListStyle(zbIBrowserViewItem* folder, zbIBrowserDataSourceSimple* source,
                                bool flag) override;
    bool AddFolderStyle(zbIBrowserViewItem* folder) override;
    zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewItem* item) final;
    bool SetCurrentStyle(zbIBrowserStyle* style) override;
    bool IsUnsorted() const override { return unsorted_; }
    void SetUnsorted(bool unsorted) override { unsorted_ = unsorted; }

    //! As those of the manager.
    //! \{
    virtual bool RemoveFolderStyles(zbIBrowserViewItem* folder);
    void OnGuiMapDeleted(zbString const& name) { styles_->OnGuiMapDeleted(name); }
    void OnViewPropertyDeleted(zbIBrowserViewProperty* property) {
        styles_->OnViewPropertyDeleted(property);
    }
    //! \}

    //! The manager forgets a folder that is going.
    void OnFolderGone(zbIBrowserViewItem const& folder) { styles_->OnFolderGone(folder); }

protected:
    ColumnBase(ViewContext& context, zbString name, zbString title);

    //! Called once, in the constructor of the concrete class.
    void SetStyleManager(std::unique_ptr<StyleManagerBase> styles) { styles_ = std::move(styles); }

private:
    template <class Signal, class... Args>
    void Raise(Signal signal, Args... args);

    ViewContext& context_;
    zbString const name_;
    zbString title_;
    std::unique_ptr<StyleManagerBase> styles_; // Not null once it is constructed
    zbString popupMenuName_;
    unsigned index_ = 0;
    unsigned position_ = 0;
    bool visible_ = true;
    bool sorting_ = true;
    bool italic_ = true;
    bool unsorted_ = true;
};

//! A column that was made by name.
class CustomColumn : public ColumnBase {
public:
    bool IsIconColumn() const override { return isIcon_; }
    bool IsDefault() const override { return false; }

    void MakeIconColumn() { isIcon_ = true; }
    //! Set while the listeners are told that the column goes.
    bool IsBeingDeleted() const { return isBeingDeleted_; }
    void SetBeingDeleted(bool isBeingDeleted) { isBeingDeleted_ = isBeingDeleted; }
    //! Greater than that of any older column of the view.
    std::uint64_t Number() const { return number_; }

protected:
    CustomColumn(ViewContext& context, zbString const& name, std::uint64_t number)
        : ColumnBase(context, name, name)
        , number_(number) {}

private:
    std::uint64_t const number_;
    bool isIcon_ = false;
    bool isBeingDeleted_ = false;
};

//! The column that every view has.
class DefaultColumn : public ColumnBase {
public:
    bool IsIconColumn() const override { return false; }
    bool IsDefault() const override { return true; }

protected:
    explicit DefaultColumn(ViewContext& context)
        : ColumnBase(context, "default_column", "Entities") {}
};

} // namespace zbbrowser::detail
