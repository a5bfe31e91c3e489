// SPDX-License-Identifier: MIT
//! \file
//! Which folders of a view are concerned with a data source.
#pragma once

#include <set>
#include <unordered_map>
#include <vector>

class zbBrowserViewItemFreeFolder;
class zbIBrowserDataSource;

namespace zbbrowser::detail {

//! The folders that list a source or have rows of its items, in the order in which a walk over all
//! folders comes to them. An event of one source thus asks its folders and no others.
//!
//! A folder may also stand here without need; an event finds nothing in it. Sources are compared
//! and never followed.
class FolderIndex {
public:
    using Folder = zbBrowserViewItemFreeFolder;
    using Source = zbIBrowserDataSource;

    //! Does nothing if it is there. Failure: std::bad_alloc; the folder is not there.
    void Add(Source const* source, Folder& folder);
    void Remove(Source const* source, Folder& folder);
    //! Takes the folder out everywhere.
    void Remove(Folder& folder);

    //! The first folder of a source behind another folder, which may have gone meanwhile; of all
    //! for null. Null: there is none.
    Folder* Next(Source const* source, Folder const* behind) const;
    void AppendTo(Source const* source, std::vector<Folder*>& out) const;

    struct Before {
        using is_transparent = void;
        bool operator()(Folder const* a, Folder const* b) const;
    };

private:
    using Folders = std::set<Folder*, Before>;

    std::unordered_map<Source const*, Folders> foldersOf_; // None is empty
    std::unordered_map<Folder const*, std::set<Source const*>> sourcesOf_;
};

} // namespace zbbrowser::detail
