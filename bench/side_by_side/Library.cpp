// SPDX-License-Identifier: MIT
#include "../ColumnHost.h"
#include "../Widget.h"
#include "Contestant.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

namespace zbbench {

namespace {

class LibraryContestant final : public Contestant {
public:
    explicit LibraryContestant(Source& source)
        : host_(source) {}

    void Attach() override { host_.Connect(); }
    void Sort(Column column, bool ascending) override {
        host_.view.SetAscendingOrder(column == Column::Name ? &host_.name : &host_.number,
                                     ascending);
    }
    void Read() override { host_.Read(); }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh)
            host_.controller->OnDataItemCreated(item, true);
    }
    void Remove(Items const& gone) override {
        for (auto* const item : gone)
            host_.view.OnDataItemDeleted(item);
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed) {
            host_.source.Rename(*item);
            item->isDirty = true;
            host_.controller->OnDataItemSimpleUpdated(item);
        }
        host_.view.OnAllDirtyDataItemsRebuild(); // Rows move then only
    }
    void Exchange(Items const&, Items const&) override {
        host_.source.isDirty = true;
        host_.controller->OnAllDirtyDataListsRebuild(&host_.view);
    }
    void RenameAtOnce(Items const& renamed) override {
        for (auto* const item : renamed)
            item->isDirty = true;
        host_.view.OnAllDirtyDataItemsRebuild();
    }

    void Select(Items const& items) override {
        std::vector<zbIBrowserDataItemSimple*> const wanted(items.begin(), items.end());
        host_.view.OnDataItemsSelected(wanted, {}, true);
    }
    void AskSelected(std::vector<char>& out) override {
        auto& manager = *host_.view.GetSelectionManager();
        for (std::size_t i = 0; i < host_.rows.size(); ++i)
            out[i] = manager.IsViewItemSelected(host_.rows[i]) ? 1 : 0;
    }
    void ClearSelection() override { host_.view.DeselectAllViewItems(); }

    void Paint(std::size_t first, Canvas& canvas) override { widget_.Paint(first, canvas); }

    Items GetItems() const override {
        Items items;
        items.reserve(host_.rows.size());
        for (auto* const row : host_.rows)
            items.push_back(static_cast<Item*>(row->GetDataItemSimple()));
        return items;
    }
    void Forget() override { std::vector<zbIBrowserViewItem*>().swap(host_.rows); }

private:
    ColumnView host_;
    Widget widget_{host_.view, host_.rows};
};

} // namespace

Entrant Library() {
    return {"zbBrowserView " ZB_VERSION, [](Source& source) -> std::unique_ptr<Contestant> {
                return std::make_unique<LibraryContestant>(source);
            }};
}

} // namespace zbbench
