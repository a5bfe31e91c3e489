// SPDX-License-Identifier: MIT
#include "GtkTable.h"

#include <string_view>

namespace zbbench {

namespace {

int CompareNames(gconstpointer a, gconstpointer b, gpointer ascending) {
    auto const& first = *ItemOf(*static_cast<bool const*>(ascending) ? a : b);
    auto const& second = *ItemOf(*static_cast<bool const*>(ascending) ? b : a);
    if (&first == &second)
        return 0;
    return IsBefore(first, second, Column::Name) ? -1 : 1;
}

char* CopyName(Part const* part, gpointer) {
    return g_strdup(part->item->GetName());
}

int GetNumber(Part const* part, gpointer) {
    return part->item->GetNumber();
}

//! Asks each row for its text once and keeps a key of it; regardless of case. Equal rows stay as
//! they stand, in the order of their identities.
GtkSorter* NewNameSorter() {
    return GTK_SORTER(gtk_string_sorter_new(gtk_cclosure_expression_new(
        G_TYPE_STRING, nullptr, 0, nullptr, G_CALLBACK(CopyName), nullptr, nullptr)));
}

//! Compares the data. The string sorter has no direction.
GtkSorter* NewDataSorter(bool& ascending) {
    return GTK_SORTER(gtk_custom_sorter_new(CompareNames, &ascending, nullptr));
}

GtkSorter* NewNumberSorter() {
    static bool ascending = true;
    auto* const sorters = gtk_multi_sorter_new();
    gtk_multi_sorter_append(
        sorters, GTK_SORTER(gtk_numeric_sorter_new(gtk_cclosure_expression_new(
                     G_TYPE_INT, nullptr, 0, nullptr, G_CALLBACK(GetNumber), nullptr, nullptr))));
    gtk_multi_sorter_append(sorters, NewDataSorter(ascending));
    return GTK_SORTER(sorters);
}

//! What draws a column: it has the signal "bind", which is raised for each row that comes into
//! sight, as that of a GtkSignalListItemFactory is. (Such a one takes the widgets of list items.)
struct Factory {
    GType const type =
        g_type_register_static_simple(G_TYPE_OBJECT, "ComparedFactory", sizeof(GObjectClass),
                                      nullptr, sizeof(GObject), nullptr, G_TYPE_FLAG_FINAL);
    guint const bind = g_signal_new("bind", type, G_SIGNAL_RUN_FIRST, 0, nullptr, nullptr,
                                    g_cclosure_marshal_VOID__OBJECT, G_TYPE_NONE, 1, GetPartType());

    Factory() { g_signal_set_va_marshaller(bind, type, g_cclosure_marshal_VOID__OBJECTv); }
    static Factory const& Get() {
        static Factory const factory;
        return factory;
    }
};

void BindLook(Item const& item, Canvas& canvas) {
    auto const stressed = item.GetNumber() % 2 == 0;
    canvas.Look(stressed, stressed);
}

void BindName(GObject*, Part const* part, Canvas* const* canvas) {
    std::string_view const name = part->item->GetName();
    (*canvas)->Text(static_cast<unsigned char>(name.front()), name.size());
    BindLook(*part->item, **canvas);
}

void BindIconAndName(GObject* factory, Part const* part, Canvas* const* canvas) {
    (*canvas)->Icon();
    BindName(factory, part, canvas);
}

void BindNumber(GObject*, Part const* part, Canvas* const* canvas) {
    (*canvas)->Number(part->item->GetNumber());
    BindLook(*part->item, **canvas);
}

GObject* NewFactory(GCallback bind, Canvas** canvas) {
    auto* const factory = G_OBJECT(g_object_new(Factory::Get().type, nullptr));
    g_signal_connect(factory, "bind", bind, canvas);
    return factory;
}

} // namespace

Part* NewPart(Item* item) {
    auto* const part = static_cast<Part*>(g_object_new(GetPartType(), nullptr));
    part->item = item;
    return part;
}

GType GetPartType() {
    static auto const type =
        g_type_register_static_simple(G_TYPE_OBJECT, "ComparedPart", sizeof(GObjectClass), nullptr,
                                      sizeof(Part), nullptr, G_TYPE_FLAG_FINAL);
    return type;
}

GtkTable::GtkTable(GListModel* model)
    : model_(model)
    , sorted_(gtk_sort_list_model_new(G_LIST_MODEL(g_object_ref(model)), nullptr))
    , selection_(gtk_multi_selection_new(G_LIST_MODEL(g_object_ref(sorted_.Get()))))
    , byNameKey_(NewNameSorter())
    , byNameData_(NewDataSorter(ascending_))
    , byNumber_(NewNumberSorter())
    , factories_{Ref(NewFactory(G_CALLBACK(BindIconAndName), &canvas_)),
                 Ref(NewFactory(G_CALLBACK(BindNumber), &canvas_)),
                 Ref(NewFactory(G_CALLBACK(BindName), &canvas_)),
                 Ref(NewFactory(G_CALLBACK(BindNumber), &canvas_))} {
}

void GtkTable::Sort(Column column, bool ascending) {
    auto const isByName = sorter_ == byNameKey_.Get() || sorter_ == byNameData_.Get();
    auto const turned = ascending != ascending_;
    ascending_ = ascending;
    if (column == Column::Number)
        Use(byNumber_.Get());
    else if (!isByName)
        Use(byNameKey_.Get());
    else if (turned)
        CompareData();
}

void GtkTable::Use(GtkSorter* sorter) {
    sorter_ = sorter;
    gtk_sort_list_model_set_sorter(sorted_.Get(), sorter);
}

void GtkTable::CompareData() {
    if (sorter_ == byNameData_.Get())
        gtk_sorter_changed(sorter_, GTK_SORTER_CHANGE_DIFFERENT);
    else
        Use(byNameData_.Get());
}

void GtkTable::Read() {
    auto* const rows = GetRows();
    auto const count = g_list_model_get_n_items(rows);
    handles_.resize(count);
    for (guint row = 0; row < count; ++row) {
        handles_[row] = static_cast<Part*>(g_list_model_get_item(rows, row));
        g_object_unref(handles_[row]);
    }
}

//! Sorting once is quicker than having the sorted model move each row. The keys are out of date.
void GtkTable::RenameAtOnce(Items const&) {
    CompareData();
}

//! The rows must be unsorted: then they are those of the model.
void GtkTable::Select(Items const& items) {
    auto* const selected = gtk_bitset_new_empty();
    for (auto const* const item : items)
        gtk_bitset_add(selected, FindRow(*item));
    auto* const all = gtk_bitset_new_range(0, g_list_model_get_n_items(GetRows()));
    gtk_selection_model_set_selection(GTK_SELECTION_MODEL(selection_.Get()), selected, all);
    gtk_bitset_unref(all);
    gtk_bitset_unref(selected);
}

void GtkTable::AskSelected(std::vector<char>& out) {
    auto* const model = GTK_SELECTION_MODEL(selection_.Get());
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = gtk_selection_model_is_selected(model, static_cast<guint>(i)) ? 1 : 0;
}

void GtkTable::ClearSelection() {
    gtk_selection_model_unselect_all(GTK_SELECTION_MODEL(selection_.Get()));
}

void GtkTable::Paint(std::size_t first, Canvas& canvas) {
    canvas_ = &canvas;
    auto const bind = Factory::Get().bind;
    for (auto row = first; row < first + rowsShown; ++row) {
        Ref<Part> const part(
            static_cast<Part*>(g_list_model_get_item(GetRows(), static_cast<guint>(row))));
        for (auto const& factory : factories_)
            g_signal_emit(factory.Get(), bind, 0, part.Get());
    }
}

Items GtkTable::GetItems() const {
    Items items;
    items.reserve(handles_.size());
    for (auto const* const part : handles_)
        items.push_back(part->item);
    return items;
}

Entrant GtkEntrant(std::unique_ptr<Contestant> (*create)(Source& source)) {
    return {"GTK " + std::to_string(gtk_get_major_version()) + '.' +
                std::to_string(gtk_get_minor_version()) + '.' +
                std::to_string(gtk_get_micro_version()),
            create};
}

} // namespace zbbench
