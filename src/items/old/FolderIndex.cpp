// SPDX-License-Identifier: MIT
#include "items/old/FolderIndex.h"

#include "items/old/zbBrowserViewItemFreeFolder.h"

namespace zbbrowser::detail {

bool FolderIndex::Before::operator()(Folder const* a, Folder const* b) const {
    return a->Place().IsBefore(b->Place());
}

void FolderIndex::Add(Source const* source, Folder& folder) {
    auto& sources = sourcesOf_[&folder];
    if (!sources.insert(source).second)
        return;
    try {
        foldersOf_[source].insert(&folder);
    } catch (...) {
        Remove(source, folder);
        throw;
    }
}

void FolderIndex::Remove(Source const* source, Folder& folder) {
    if (auto const own = sourcesOf_.find(&folder); own != sourcesOf_.end())
        own->second.erase(source);
    auto const found = foldersOf_.find(source);
    if (found == foldersOf_.end())
        return;
    found->second.erase(&folder);
    if (found->second.empty())
        foldersOf_.erase(found);
}

void FolderIndex::Remove(Folder& folder) {
    auto const own = sourcesOf_.extract(&folder);
    if (own.empty())
        return;
    for (auto const* const source : own.mapped())
        Remove(source, folder);
}

FolderIndex::Folder* FolderIndex::Next(Source const* source, Folder const* behind) const {
    auto const found = foldersOf_.find(source);
    if (found == foldersOf_.end())
        return nullptr;
    auto const& folders = found->second;
    auto const next = behind == nullptr ? folders.begin() : folders.upper_bound(behind);
    return next == folders.end() ? nullptr : *next;
}

void FolderIndex::AppendTo(Source const* source, std::vector<Folder*>& out) const {
    if (auto const found = foldersOf_.find(source); found != foldersOf_.end())
        out.insert(out.end(), found->second.begin(), found->second.end());
}

} // namespace zbbrowser::detail
