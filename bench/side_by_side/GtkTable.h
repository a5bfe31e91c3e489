// SPDX-License-Identifier: MIT
//! \file
//! What the GTK contestants share: the model that sorts, the selection, and a factory's questions.
#pragma once

#include "Contestant.h"

#include <gtk/gtk.h>

#include <array>

namespace zbbench {

//! A reference to an object of GLib.
template <class T>
class Ref {
public:
    Ref() = default;
    //! Takes over the reference that is given.
    explicit Ref(T* object)
        : object_(object) {}
    Ref(Ref const&) = delete;
    Ref& operator=(Ref const&) = delete;
    ~Ref() {
        if (object_ != nullptr)
            g_object_unref(object_);
    }
    T* Get() const { return object_; }

private:
    T* object_ = nullptr;
};

// What a row of the models is: an object with the item.
struct Part {
    GObject parent;
    Item* item;
};
Part* NewPart(Item* item);
GType GetPartType();
inline Item* ItemOf(gconstpointer part) {
    return static_cast<Part const*>(part)->item;
}

//! None of the models needs a display, nor that GTK is initialised.
class GtkTable : public Contestant {
public:
    void Sort(Column column, bool ascending) override;
    void Read() override;
    void RenameAtOnce(Items const& renamed) override;
    void Select(Items const& items) override;
    void AskSelected(std::vector<char>& out) override;
    void ClearSelection() override;
    void Paint(std::size_t first, Canvas& canvas) override;
    Items GetItems() const override;
    void Forget() override { std::vector<Part*>().swap(handles_); }

protected:
    //! Takes over a reference.
    explicit GtkTable(GListModel* model);

    GListModel* GetModel() const { return model_.Get(); }
    //! The objects of the model are those of the items in the order of their identities.
    virtual guint FindRow(Item const& item) const = 0;

private:
    void Use(GtkSorter* sorter);
    //! Sorts by name once more, by the data instead of by keys that were made of it.
    void CompareData();
    GListModel* GetRows() const { return G_LIST_MODEL(selection_.Get()); }

    Ref<GListModel> const model_;
    Ref<GtkSortListModel> const sorted_;
    Ref<GtkMultiSelection> const selection_;
    bool ascending_ = true;
    Ref<GtkSorter> const byNameKey_;  // Ascending
    Ref<GtkSorter> const byNameData_; // As ascending_ says
    Ref<GtkSorter> const byNumber_;
    std::array<Ref<GObject>, columnsShown> const factories_;
    Canvas* canvas_ = nullptr;    // Not owned; that which is painted on
    GtkSorter* sorter_ = nullptr; // Not owned; null: unsorted
    std::vector<Part*> handles_;  // Not owned: the model has them
};

Entrant GtkEntrant(std::unique_ptr<Contestant> (*create)(Source& source));

} // namespace zbbench
