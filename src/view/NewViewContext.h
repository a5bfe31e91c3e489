// SPDX-License-Identifier: MIT
//! \file
//! What the items and handlers of a new view need of their view.
#pragma once

#include "view/ViewContext.h"

#include <memory>
#include <unordered_map>

class zbIBrowserViewItem;

namespace zbbrowser {

class View;
class ViewItemFreeFolder;
class ViewItemVirtualRoot;

namespace detail {

//! The context of a new view: besides what every view has, its root and its folders.
class NewViewContext : public ViewContext {
public:
    NewViewContext(zbbrowser::View& view, zbBrowserViewCtrl const* ctrl);
    ~NewViewContext() override;

    zbbrowser::View& NewView() const { return newView_; }

    //! Null before they are made and once the view has deleted them.
    ViewItemVirtualRoot* Root() const { return root_.get(); }
    //! Requires: there is none.
    void SetRoot(std::unique_ptr<ViewItemVirtualRoot> root);
    //! The folders are found no more; they go when the operations that are running have returned.
    void DeleteRoot();

    //! The folder of this view behind an interface pointer; null if there is none. The pointer is
    //! compared and not followed. O(1).
    ViewItemFreeFolder* FindFolder(zbIBrowserViewItem const* item) const;
    bool Owns(zbIBrowserViewItem const* item) const override { return FindFolder(item) != nullptr; }
    void RegisterFolder(ViewItemFreeFolder& folder);
    void UnregisterFolder(ViewItemFreeFolder const& folder);

private:
    zbbrowser::View& newView_;
    std::unordered_map<zbIBrowserViewItem const*, ViewItemFreeFolder*> folders_;
    std::unique_ptr<ViewItemVirtualRoot> root_;
};

} // namespace detail
} // namespace zbbrowser
