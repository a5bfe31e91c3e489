// SPDX-License-Identifier: MIT
#include "presentation/columns/ColumnSet.h"

#include "filtersort/SortHandlerBase.h"
#include "presentation/columns/ViewColumn.h"
#include "presentation/columns/zbBrowserViewColumn.h"
#include "view/NewViewContext.h"
#include "view/OldViewContext.h"

#include <utility>

namespace zbbrowser::detail {

namespace {

//! Marks a column while its deletion is told, also if a slot leaves by an exception.
class DeletionMark {
public:
    explicit DeletionMark(CustomColumn& column)
        : column_(column) {
        column_.SetBeingDeleted(true);
    }
    DeletionMark(DeletionMark const&) = delete;
    DeletionMark& operator=(DeletionMark const&) = delete;
    ~DeletionMark() { column_.SetBeingDeleted(false); }

private:
    CustomColumn& column_;
};

} // namespace

bool ColumnSet::NameKey::operator<(NameKey const& other) const {
    auto const order = StrICmp(name, other.name);
    return order != 0 ? order < 0 : number < other.number;
}

ColumnSet::ColumnSet(ViewContext& context)
    : context_(context) {
}

ColumnSet::~ColumnSet() = default;

// Looking up

zbIBrowserViewColumn* ColumnSet::Default() const {
    return default_.get();
}

zbIBrowserViewColumn* ColumnSet::Find(zbIBrowserViewColumn const* column) const {
    return column != nullptr && column == default_.get() ? default_.get() : scripted_.Find(column);
}

CustomColumn* ColumnSet::FindScripted(zbIBrowserViewColumn const* column) const {
    return static_cast<CustomColumn*>(scripted_.Find(column));
}

zbIBrowserViewColumn* ColumnSet::FindByName(char const* name) const {
    if (name == nullptr)
        return nullptr;
    if (default_ != nullptr && StrICmp(default_->GetName(), name) == 0)
        return default_.get();
    auto const found = byName_.lower_bound({name, 0});
    return found != byName_.end() && StrICmp(found->first.name, name) == 0 ? found->second.get()
                                                                           : nullptr;
}

void ColumnSet::List(std::vector<zbIBrowserViewColumn*>& out) const {
    out.clear();
    out.reserve(scripted_.Count() + 1);
    out.push_back(default_.get());
    scripted_.ForEach([&out](zbIBrowserViewColumn* column) {
        if (!static_cast<CustomColumn*>(column)->IsBeingDeleted())
            out.push_back(column);
    });
}

// Making and deleting

void ColumnSet::CreateDefault() {
    if (default_ != nullptr)
        return;
    if (context_.IsNew())
        default_ = std::make_unique<ViewColumnDefault>(static_cast<NewViewContext&>(context_));
    else
        default_ =
            std::make_unique<zbBrowserViewColumnDefault>(static_cast<OldViewContext&>(context_));
}

void ColumnSet::DeleteDefault() {
    if (default_ == nullptr)
        return;
    ForgetSortBy(default_.get());
    context_.Lifetime().Retire(std::move(default_));
}

std::unique_ptr<CustomColumn> ColumnSet::Make(char const* name, std::uint64_t number) {
    if (context_.IsNew())
        return std::make_unique<ViewColumnCustom>(static_cast<NewViewContext&>(context_), name,
                                                  number);
    return std::make_unique<zbBrowserViewColumnCustom>(static_cast<OldViewContext&>(context_), name,
                                                       number);
}

ColumnSet::NameKey ColumnSet::KeyOf(CustomColumn const& column) {
    return {column.GetName(), column.Number()};
}

CustomColumn* ColumnSet::Add(char const* name) {
    if (name == nullptr || (context_.IsNew() && *name == '\0'))
        return nullptr;
    auto made = Make(name, ++lastNumber_);
    auto& column = *made;
    scripted_.Reserve(1);
    byName_.emplace(KeyOf(column), std::move(made));
    scripted_.Add(&column);
    return &column;
}

bool ColumnSet::Create(char const* name, bool isIcon) {
    CallScope const scope(context_.Lifetime());
    context_.ClearError();
    if (FindByName(name) != nullptr)
        return context_.Report(zbString("Column \"") + name + "\" already exists");
    auto* const column = Add(name);
    if (column == nullptr)
        return context_.Report("Could not create a column");
    if (isIcon)
        column->MakeIconColumn();
    context_.Raise(&zbBrowserSignalManager::ColumnCreated, column);
    return true;
}

bool ColumnSet::Delete(zbIBrowserViewColumn* column) {
    CallScope const scope(context_.Lifetime());
    context_.ClearError();
    if (column == nullptr)
        return false;
    auto* const found = FindScripted(column);
    if (found == nullptr || found->IsBeingDeleted())
        return context_.State();
    {
        DeletionMark const mark(*found);
        ResetSort();
        context_.Raise(&zbBrowserSignalManager::ColumnDeleted, column);
    }
    Remove(column);
    return context_.State();
}

void ColumnSet::DeleteAllScripted() {
    while (auto const* const column = scripted_.Last())
        Remove(column);
}

// A slot may have removed it already.
void ColumnSet::Remove(zbIBrowserViewColumn const* column) {
    auto const* const found = FindScripted(column);
    if (found == nullptr)
        return;
    ForgetSortBy(column);
    scripted_.Remove(column);
    context_.Lifetime().Retire(std::move(byName_.extract(KeyOf(*found)).mapped()));
}

bool ColumnSet::Show(zbIBrowserViewColumn* column, bool show) {
    CallScope const scope(context_.Lifetime());
    context_.ClearError();
    if (column == nullptr)
        return false;
    auto* const found = FindScripted(column);
    if (found == nullptr || (context_.IsNew() && found->IsVisible() == show))
        return context_.State();
    found->SetVisible(show);
    if (!show)
        ResetSort();
    if (Find(column) != nullptr)
        context_.Raise(&zbBrowserSignalManager::ColumnShown, column);
    context_.Raise(&zbBrowserSignalManager::ColumnsChanged);
    return context_.State();
}

void ColumnSet::ResetSort() {
    if (auto* const handler = context_.SortHandler())
        handler->ResetSortedColumn();
}

void ColumnSet::ForgetSortBy(zbIBrowserViewColumn const* column) {
    if (auto* const handler = context_.SortHandler())
        handler->OnColumnGone(column);
}

// To all columns

// Slots may add columns and delete them; those that are deleted meanwhile are not heard any more.
template <class Visit>
void ColumnSet::ForEach(Visit visit) {
    CallScope const scope(context_.Lifetime());
    auto const columns = scripted_.Snapshot();
    if (default_ != nullptr)
        visit(*default_);
    for (auto* const column : columns)
        visit(static_cast<ColumnBase&>(*column));
}

void ColumnSet::SetSorting(bool sorting) {
    ForEach([sorting](ColumnBase& column) { column.SetSorting(sorting); });
}

void ColumnSet::SetItalic(bool italic) {
    ForEach([italic](ColumnBase& column) { column.SetItalic(italic); });
}

void ColumnSet::OnGuiMapDeleted(zbString const& name) {
    ForEach([&name](ColumnBase& column) { column.OnGuiMapDeleted(name); });
}

void ColumnSet::OnViewPropertyDeleted(zbIBrowserViewProperty* property) {
    context_.Styles().OnViewPropertyDeleted(property);
}

// Styles of items

zbIBrowserStyle* ColumnSet::StyleOf(zbIBrowserViewColumn const* column,
                                    zbIBrowserViewItem* item) const {
    auto* const own = static_cast<ColumnBase*>(Find(column));
    return own == nullptr ? nullptr : own->GetViewItemStyle(item);
}

bool ColumnSet::GiveStyle(zbIBrowserViewItem* item) {
    if (default_ == nullptr || !context_.Owns(item))
        return false;
    default_->AddFolderStyle(item);
    return true;
}

bool ColumnSet::TakeStyles(zbIBrowserViewItem* item) {
    if (default_ == nullptr || !context_.Owns(item))
        return false;
    default_->RemoveFolderStyles(item);
    return true;
}

void ColumnSet::OnFolderGone(zbIBrowserViewItem const& folder) {
    if (default_ != nullptr)
        default_->OnFolderGone(folder);
}

} // namespace zbbrowser::detail
