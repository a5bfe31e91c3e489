// SPDX-License-Identifier: MIT
//! \file
//! What the items and contents of an old view need of their view.
#pragma once

#include "containers/SlabPool.h"
#include "items/old/FolderIndex.h"
#include "view/HandlerSeams.h"
#include "view/ViewContext.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

class zbBrowserView;
class zbBrowserViewItemDataLeaf;
class zbBrowserViewItemFreeFolder;
class zbIBrowserViewItem;

namespace zbbrowser::detail {

//! The context of an old view: besides what every view has, the memory of its leaves, the register
//! that turns an interface pointer into the concrete item, and the handlers.
class OldViewContext : public ViewContext {
public:
    OldViewContext(zbBrowserView& view, zbBrowserViewCtrl const* ctrl);

    ~OldViewContext() override;

    void ClearError() override;
    bool Report(zbString const& text) override;
    bool State() const override;

    zbBrowserView& OldView() const { return oldView_; }
    HandlerSeams& Handlers() { return handlers_; }
    SlabPool& LeafMemory() { return leafMemory_; }
    //! False once the whole view goes: the leaves own nothing, and their memory goes with it.
    bool FreesLeaves() const { return !isEnding_; }
    void NoteEnd() { isEnding_ = true; }

    //! The folder of this view behind an interface pointer; null if there is none. The pointer is
    //! compared and not followed, so anything may be asked about.
    zbBrowserViewItemFreeFolder* FindFolder(zbIBrowserViewItem const* item) const;

    //! The same for a leaf. A leaf that is about to be freed is not found.
    zbBrowserViewItemDataLeaf* FindLeaf(zbIBrowserViewItem const* item) const;

    //! The same for a leaf, also one that is about to be freed.
    zbBrowserViewItemDataLeaf* FindAnyLeaf(zbIBrowserViewItem const* item) const;

    bool Owns(zbIBrowserViewItem const* item) const override {
        return FindFolder(item) != nullptr || FindLeaf(item) != nullptr;
    }
    bool Knows(zbIBrowserViewItem const* item) const override {
        return FindFolder(item) != nullptr || FindAnyLeaf(item) != nullptr;
    }

    //! See zbBrowserView::SelectViewItem.
    void SelectViewItem(zbIBrowserViewItem& item, bool select, bool recursive);

    void RegisterFolder(zbBrowserViewItemFreeFolder& folder);
    void UnregisterFolder(zbBrowserViewItemFreeFolder const& folder);
    std::size_t FolderCount() const { return folders_.size(); }
    //! Folders are numbered in the order in which they are made.
    std::uint64_t NextFolderNumber() { return foldersMade_++; }
    std::uint64_t FoldersMade() const { return foldersMade_; }

    //! \name Content of folders
    //! \{
    FolderIndex& Folders() { return folderIndex_; }
    void NoteHolderMade() { ++holders_; }
    void NoteHolderGone() { --holders_; }
    bool AllFoldersHaveHolders() const { return holders_ == folders_.size(); }
    //! \}

private:
    zbBrowserView& oldView_;
    HandlerSeams handlers_;
    SlabPool leafMemory_;
    bool isEnding_ = false;
    std::unordered_map<zbIBrowserViewItem const*, zbBrowserViewItemFreeFolder*> folders_;
    FolderIndex folderIndex_;
    std::uint64_t foldersMade_ = 0;
    std::size_t holders_ = 0;
};

//! Leaves that have left their content and are about to go. They are freed with this object, or,
//! while an operation of the view is running, when that returns.
class DetachedLeaves {
public:
    //! Makes room for `count` leaves, so that what follows takes no memory.
    DetachedLeaves(OldViewContext& context, std::size_t count);
    DetachedLeaves(DetachedLeaves const&) = delete;
    DetachedLeaves& operator=(DetachedLeaves const&) = delete;
    ~DetachedLeaves();

    bool IsEmpty() const { return leaves_->items.empty(); }
    //! Requires: room for one more.
    void Add(zbBrowserViewItemDataLeaf& leaf);

    //! A copy for slots, which may change what they are given.
    std::vector<zbIBrowserViewItem*> Items() const { return leaves_->items; }

    //! Frees a leaf that nobody can hold any more.
    static void Destroy(zbBrowserViewItemDataLeaf& leaf, OldViewContext& context);

private:
    struct Leaves final : Retirable {
        explicit Leaves(OldViewContext& itsContext)
            : context(itsContext) {}
        ~Leaves() override;

        OldViewContext& context;
        std::vector<zbIBrowserViewItem*> items; // Leaves, owned
    };

    std::unique_ptr<Leaves> leaves_;
};

} // namespace zbbrowser::detail
