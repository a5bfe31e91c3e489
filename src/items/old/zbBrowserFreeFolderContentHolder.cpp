// SPDX-License-Identifier: MIT
#include "items/old/zbBrowserFreeFolderContentHolder.h"

#include "items/old/zbBrowserViewItemFreeFolder.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

#include <algorithm>
#include <new>

zbBrowserFreeFolderContentHolder::zbBrowserFreeFolderContentHolder(
    zbBrowserViewItemFreeFolder& folder)
    : folder_(folder) {
}

zbBrowserFreeFolderContentHolder::~zbBrowserFreeFolderContentHolder() = default;

bool zbBrowserFreeFolderContentHolder::CreateList(Simple* source) {
    if (FindList(source) != nullptr)
        return false;
    return ListContent().AddList(source);
}

zbBrowserFreeFolderContent& zbBrowserFreeFolderContentHolder::ListContent() {
    if (folder_.GetGroupLeafs())
        return withGrouping_;
    return noGrouping_;
}

bool zbBrowserFreeFolderContentHolder::DeleteList(Simple* source) {
    return noGrouping_.FindList(source) != nullptr ? noGrouping_.RemoveList(source)
                                                   : withGrouping_.RemoveList(source);
}

zbBrowserFreeFolderContentHolder::Simple*
zbBrowserFreeFolderContentHolder::FindList(Simple const* source) const {
    auto* const found = noGrouping_.FindList(source);
    return found != nullptr ? found : withGrouping_.FindList(source);
}

zbBrowserFreeFolderContentHolder::Simple*
zbBrowserFreeFolderContentHolder::FindList(char const* name) const {
    auto* const found = noGrouping_.FindList(name);
    return found != nullptr ? found : withGrouping_.FindList(name);
}

zbBrowserFreeFolderContentHolder::Simple*
zbBrowserFreeFolderContentHolder::FindDataSource(char const* name) {
    auto* const found = FindList(name);
    return found != nullptr ? found : withTree_.FindChildType(name);
}

std::vector<zbBrowserFreeFolderContentHolder::Simple*>
zbBrowserFreeFolderContentHolder::Lists() const {
    auto lists = noGrouping_.Lists().Snapshot();
    withGrouping_.Lists().AppendTo(lists);
    return lists;
}

bool zbBrowserFreeFolderContentHolder::HasLists() const {
    return !noGrouping_.Lists().IsEmpty() || !withGrouping_.Lists().IsEmpty();
}

bool zbBrowserFreeFolderContentHolder::IsConcernedWith(Simple const* source) const {
    return FindList(source) != nullptr || noGrouping_.HasRowsOf(source);
}

bool zbBrowserFreeFolderContentHolder::SetListGrouped(Simple* source, bool grouped) {
    zbBrowserFreeFolderContent* from = &noGrouping_;
    zbBrowserFreeFolderContent* to = &withGrouping_;
    if (!grouped)
        std::swap(from, to);
    bool moved = true;
    if (from->FindList(source) != nullptr && to->RecordList(source)) {
        try {
            from->RemoveList(source);
        } catch (std::bad_alloc const&) {
            if (from->FindList(source) != nullptr)
                to->UnrecordList(source);
            throw;
        }
        moved = to->ConnectRecordedList(source);
    }
    for (auto* const tree : withTree_.Trees()) {
        if (IsAlive() && withTree_.HasTree(tree))
            withTree_.SetTypeGrouped(tree, source, grouped);
    }
    return moved;
}

void zbBrowserFreeFolderContentHolder::AppendAllLists(std::vector<Simple*>& out) {
    noGrouping_.Lists().AppendTo(out);
    withGrouping_.Lists().AppendTo(out);
    for (auto* const tree : withTree_.Trees()) {
        std::vector<Simple*> types;
        if (withTree_.HasTree(tree))
            withTree_.GetChildTypes(tree, types);
        out.insert(out.end(), types.begin(), types.end());
    }
}

void zbBrowserFreeFolderContentHolder::AppendAllViewItems(Items& out, bool recursive) const {
    for (auto const* const content : Contents())
        content->GetAllViewItems(out, recursive);
}

std::size_t zbBrowserFreeFolderContentHolder::CountViewItems(bool recursive) const {
    std::size_t count = 0;
    for (auto const* const content : Contents())
        count += content->CountViewItems(recursive);
    return count;
}

bool zbBrowserFreeFolderContentHolder::HasVisibleItems() const {
    auto const contents = Contents();
    return std::any_of(contents.begin(), contents.end(),
                       [](zbBrowserFreeFolderContent const* c) { return c->HasVisibleItems(); });
}

zbIBrowserViewItem*
zbBrowserFreeFolderContentHolder::FindViewItem(zbIBrowserViewItem const* item) const {
    auto* const found = noGrouping_.FindViewItem(item);
    return found != nullptr ? found : withTree_.FindViewItem(item);
}

zbIBrowserViewItem* zbBrowserFreeFolderContentHolder::FindGroup(zbIBrowserViewItem const* item,
                                                                bool deep) const {
    auto* const found = withGrouping_.FindGroup(item, deep);
    return found != nullptr ? found : withTree_.FindGroup(item, deep);
}

void zbBrowserFreeFolderContentHolder::OnDataItemCreated(zbIBrowserDataItemSimple* item,
                                                         Items& created, Items& parents) {
    auto const* const source = item->GetDataSource();
    ForEach([&](zbBrowserFreeFolderContent& content) {
        if (content.FindList(source) != nullptr)
            content.OnDataItemCreated(item, created, parents);
    });
}

void zbBrowserFreeFolderContentHolder::GetViewItems(zbIBrowserDataItemSimple* item, Items& found,
                                                    Items& parents) {
    ForEach(
        [&](zbBrowserFreeFolderContent& content) { content.GetViewItems(item, found, parents); });
}

zbString const& zbBrowserFreeFolderContentHolder::LastListMessage() const {
    return folder_.GetGroupLeafs() ? withGrouping_.LastMessage() : noGrouping_.LastMessage();
}

void zbBrowserFreeFolderContentHolder::MarkDead() {
    for (auto* const content : Contents())
        content->MarkDead();
}
