// SPDX-License-Identifier: MIT
#include "GtkTable.h"

namespace zbbench {

namespace {

class GtkStoreContestant final : public GtkTable {
public:
    explicit GtkStoreContestant(Source& source)
        : GtkTable(G_LIST_MODEL(g_list_store_new(GetPartType())))
        , source_(source) {}

    void Attach() override {
        std::vector<gpointer> parts;
        parts.reserve(source_.Items().size());
        for (auto& item : source_.Items())
            parts.push_back(NewPart(&item));
        Replace(parts);
    }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh) {
            Ref<Part> const part(NewPart(item));
            g_list_store_append(GetStore(), part.Get());
        }
    }
    void Remove(Items const& gone) override {
        for (auto const* const item : gone)
            g_list_store_remove(GetStore(), FindRow(*item));
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed) {
            source_.Rename(*item);
            g_list_model_items_changed(GetModel(), FindRow(*item), 1, 1);
        }
    }
    //! One splice over all rows is quicker than one for each that goes.
    void Exchange(Items const&, Items const& fresh) override {
        std::vector<gpointer> parts;
        auto const count = g_list_model_get_n_items(GetModel());
        parts.reserve(count + fresh.size());
        for (guint row = 0; row < count; ++row) {
            auto* const part = g_list_model_get_item(GetModel(), row);
            if (ItemOf(part)->isListed)
                parts.push_back(part);
            else
                g_object_unref(part);
        }
        for (auto* const item : fresh) {
            if (item->isListed)
                parts.push_back(NewPart(item));
        }
        Replace(parts);
    }

private:
    GListStore* GetStore() const { return G_LIST_STORE(GetModel()); }
    //! Takes over a reference to each.
    void Replace(std::vector<gpointer>& parts) {
        g_list_store_splice(GetStore(), 0, g_list_model_get_n_items(GetModel()), parts.data(),
                            static_cast<guint>(parts.size()));
        for (auto* const part : parts)
            g_object_unref(part);
    }
    //! By halves: g_list_store_find() looks at one after the other.
    guint FindRow(Item const& item) const override {
        guint first = 0;
        for (auto behind = g_list_model_get_n_items(GetModel()); first < behind;) {
            auto const middle = first + (behind - first) / 2;
            Ref<Part> const part(static_cast<Part*>(g_list_model_get_item(GetModel(), middle)));
            if (part.Get()->item->GetId() < item.GetId())
                first = middle + 1;
            else
                behind = middle;
        }
        return first;
    }

    Source& source_;
};

} // namespace

Entrant GtkStore() {
    return GtkEntrant([](Source& source) -> std::unique_ptr<Contestant> {
        return std::make_unique<GtkStoreContestant>(source);
    });
}

} // namespace zbbench
