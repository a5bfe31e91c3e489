// SPDX-License-Identifier: MIT
//! \file
//! The three strategies that fill one free folder.
#pragma once

#include "items/old/zbBrowserFreeFolderContentNoGrouping.h"
#include "items/old/zbBrowserFreeFolderContentWithGrouping.h"
#include "items/old/zbBrowserFreeFolderContentWithTree.h"
#include "view/ViewLifetime.h"

#include <array>

//! Passes what concerns a folder's content to the strategies that it concerns. Events and commands
//! for all of them go in a fixed order: without grouping, with grouping, with tree.
//!
//! A list is in one of the two list strategies: which one is decided by the folder's GetGroupLeafs
//! when the list is created, and later by SetListGrouped alone.
class zbBrowserFreeFolderContentHolder final : public zbbrowser::detail::Retirable {
public:
    using Items = zbBrowserFreeFolderContent::Items;
    using Simple = zbBrowserFreeFolderContent::Simple;
    using Tree = zbBrowserFreeFolderContent::Tree;

    explicit zbBrowserFreeFolderContentHolder(zbBrowserViewItemFreeFolder& folder);
    zbBrowserFreeFolderContentHolder(zbBrowserFreeFolderContentHolder const&) = delete;
    zbBrowserFreeFolderContentHolder& operator=(zbBrowserFreeFolderContentHolder const&) = delete;
    ~zbBrowserFreeFolderContentHolder() override;

    zbBrowserViewItemFreeFolder& Folder() const { return folder_; }
    zbBrowserFreeFolderContentNoGrouping& NoGrouping() { return noGrouping_; }
    zbBrowserFreeFolderContentWithGrouping& WithGrouping() { return withGrouping_; }
    zbBrowserFreeFolderContentWithTree& WithTree() { return withTree_; }

    //! The strategy that a new list goes to now.
    zbBrowserFreeFolderContent& ListContent();
    bool CreateList(Simple* source);
    bool DeleteList(Simple* source);
    Simple* FindList(Simple const* source) const;
    Simple* FindList(char const* name) const;
    Simple* FindDataSource(char const* name);
    std::vector<Simple*> Lists() const;
    bool HasLists() const;
    //! It is a list, or there are rows of its items.
    bool IsConcernedWith(Simple const* source) const;
    bool HasTrees() const { return withTree_.HasTrees(); }
    bool SetListGrouped(Simple* source, bool grouped);
    //! Lists, then the types of each tree. A source comes once for each place.
    void AppendAllLists(std::vector<Simple*>& out);

    //! A list or a type of a tree for which `isWanted` holds. `isWanted` may ask the host, which
    //! may take out others.
    template <class IsWanted>
    bool AnySource(IsWanted isWanted) {
        for (auto* const list : Lists()) {
            if (FindList(list) != nullptr && isWanted(list))
                return true;
        }
        for (auto* const tree : withTree_.Trees()) {
            std::vector<Simple*> types;
            if (withTree_.HasTree(tree))
                withTree_.GetChildTypes(tree, types);
            for (auto* const type : types) {
                if (withTree_.HasTree(tree) && isWanted(type))
                    return true;
            }
        }
        return false;
    }

    //! Rows of all strategies in the fixed order.
    void AppendAllViewItems(Items& out, bool recursive) const;
    std::size_t CountViewItems(bool recursive) const;
    bool HasVisibleItems() const;
    //! The item of this folder for the data item of another view item.
    zbIBrowserViewItem* FindViewItem(zbIBrowserViewItem const* item) const;
    zbIBrowserViewItem* FindGroup(zbIBrowserViewItem const* item, bool deep) const;

    void OnDataItemCreated(zbIBrowserDataItemSimple* item, Items& created, Items& parents);
    void GetViewItems(zbIBrowserDataItemSimple* item, Items& found, Items& parents);

    //! Does something with each strategy in the fixed order, until this holder has gone.
    template <class Visit>
    void ForEach(Visit visit) {
        for (auto* const content : Contents()) {
            if (!IsAlive())
                return;
            visit(*content);
        }
    }

    //! The texts of the last refused call of one of the strategies.
    zbString const& LastListMessage() const;
    zbString const& LastTreeMessage() const { return withTree_.LastMessage(); }

    //! False once the folder has let go of it and it only waits to be freed.
    bool IsAlive() const { return noGrouping_.IsAlive(); }
    void MarkDead();

private:
    std::array<zbBrowserFreeFolderContent*, 3> Contents() {
        return {&noGrouping_, &withGrouping_, &withTree_};
    }
    std::array<zbBrowserFreeFolderContent const*, 3> Contents() const {
        return {&noGrouping_, &withGrouping_, &withTree_};
    }

    zbBrowserViewItemFreeFolder& folder_;
    zbBrowserFreeFolderContentWithGrouping withGrouping_{*this};
    zbBrowserFreeFolderContentNoGrouping noGrouping_{*this};
    zbBrowserFreeFolderContentWithTree withTree_{*this};
};
