// SPDX-License-Identifier: MIT
#include "GtkTable.h"

#include <algorithm>

namespace zbbench {

namespace {

// A row of the model. The object is made when it is first asked for, and kept.
struct Row {
    Item* item;
    Part* part; // Owned; null: not asked for yet
};
using Rows = std::vector<Row>;

// The items of a source in the order of their identities.
struct PartList {
    GObject parent;
    Rows* rows; // Owned
};

Rows& RowsOf(gpointer list) {
    return *static_cast<PartList*>(list)->rows;
}

gpointer GetItem(GListModel* list, guint position) {
    auto& rows = RowsOf(list);
    if (position >= rows.size())
        return nullptr;
    auto& row = rows[position];
    if (row.part == nullptr)
        row.part = NewPart(row.item);
    return g_object_ref(row.part);
}

void InitModel(gpointer face, gpointer) {
    auto& model = *static_cast<GListModelInterface*>(face);
    model.get_item_type = [](GListModel*) { return GetPartType(); };
    model.get_n_items = [](GListModel* list) { return static_cast<guint>(RowsOf(list).size()); };
    model.get_item = GetItem;
}

void DropRow(Row const& row) {
    if (row.part != nullptr)
        g_object_unref(row.part);
}

void Finalize(GObject* list) {
    std::for_each(RowsOf(list).begin(), RowsOf(list).end(), DropRow);
    delete &RowsOf(list);
    G_OBJECT_CLASS(g_type_class_peek(G_TYPE_OBJECT))->finalize(list);
}

GType GetListType() {
    static auto const type = [] {
        auto const made = g_type_register_static_simple(
            G_TYPE_OBJECT, "ComparedPartList", sizeof(GObjectClass),
            [](gpointer face, gpointer) { G_OBJECT_CLASS(face)->finalize = Finalize; },
            sizeof(PartList),
            [](GTypeInstance* list, gpointer) {
                reinterpret_cast<PartList*>(list)->rows = new Rows;
            },
            G_TYPE_FLAG_FINAL);
        GInterfaceInfo const info{InitModel, nullptr, nullptr};
        g_type_add_interface_static(made, G_TYPE_LIST_MODEL, &info);
        return made;
    }();
    return type;
}

class GtkModelContestant final : public GtkTable {
public:
    explicit GtkModelContestant(Source& source)
        : GtkTable(G_LIST_MODEL(g_object_new(GetListType(), nullptr)))
        , source_(source) {}

    void Attach() override {
        auto& rows = GetModelRows();
        rows.reserve(source_.Items().size());
        for (auto& item : source_.Items())
            rows.push_back({&item, nullptr});
        Report(0, 0, rows.size());
    }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh) {
            GetModelRows().push_back({item, nullptr});
            Report(GetModelRows().size() - 1, 0, 1);
        }
    }
    void Remove(Items const& gone) override {
        for (auto const* const item : gone) {
            auto const row = GetModelRows().begin() + FindRow(*item);
            auto const removed = *row;
            auto const position = row - GetModelRows().begin();
            GetModelRows().erase(row);
            Report(static_cast<std::size_t>(position), 1, 0);
            DropRow(removed);
        }
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed) {
            source_.Rename(*item);
            Report(FindRow(*item), 1, 1);
        }
    }
    //! One report over all rows is quicker than one for each that goes.
    void Exchange(Items const&, Items const& fresh) override {
        auto& rows = GetModelRows();
        auto const before = rows.size();
        for (auto* const item : fresh)
            rows.push_back({item, nullptr});
        auto const kept = std::stable_partition(rows.begin(), rows.end(),
                                                [](Row const& row) { return row.item->isListed; });
        Rows const removed(kept, rows.end());
        rows.erase(kept, rows.end());
        Report(0, before, rows.size());
        std::for_each(removed.begin(), removed.end(), DropRow);
    }

private:
    Rows& GetModelRows() const { return RowsOf(GetModel()); }
    void Report(std::size_t position, std::size_t removed, std::size_t added) {
        g_list_model_items_changed(GetModel(), static_cast<guint>(position),
                                   static_cast<guint>(removed), static_cast<guint>(added));
    }
    guint FindRow(Item const& item) const override {
        auto const& rows = GetModelRows();
        auto const found = std::lower_bound(
            rows.begin(), rows.end(), item.GetId(),
            [](Row const& row, std::uint32_t id) { return row.item->GetId() < id; });
        return static_cast<guint>(found - rows.begin());
    }

    Source& source_;
};

} // namespace

Entrant GtkModel() {
    return GtkEntrant([](Source& source) -> std::unique_ptr<Contestant> {
        return std::make_unique<GtkModelContestant>(source);
    });
}

} // namespace zbbench
