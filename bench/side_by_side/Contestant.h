// SPDX-License-Identifier: MIT
//! \file
//! What is compared: something that shows a source as a table.
#pragma once

#include "../Canvas.h"
#include "../LightHost.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zbbench {

using Items = std::vector<Item*>;

enum class Column : std::uint8_t { Name, Number };

//! The order of two rows: by number if that is sorted by; then by name regardless of case; what is
//! still equal by identity.
inline bool IsBefore(Item const& a, Item const& b, Column column) {
    auto order = column == Column::Number ? a.GetNumber() - b.GetNumber() : 0;
    if (order == 0)
        order = a.CompareName(b);
    return order != 0 ? order < 0 : a.GetId() < b.GetId();
}

//! A table of a source with four columns (icon and name, number, name, number) that can be sorted,
//! selected in and painted. Empty and unsorted at first. All of it is there from the start, also
//! where it is not used yet: whoever follows events unsorted can be sorted at any time.
//!
//! The source has changed already when the contestant is told of it. Reading leaves a handle of
//! each row, from which its cells can be asked; the rest works on what was read last.
class Contestant {
public:
    Contestant() = default;
    Contestant(Contestant const&) = delete;
    Contestant& operator=(Contestant const&) = delete;
    virtual ~Contestant() = default;

    //! Shows all items that the source lists.
    virtual void Attach() = 0;
    virtual void Sort(Column column, bool ascending) = 0;
    virtual void Read() = 0;

    //! One by one, in this order.
    virtual void Insert(Items const& fresh) = 0;
    virtual void Remove(Items const& gone) = 0;
    //! The source renames each when it is its turn.
    virtual void Rename(Items const& renamed) = 0;
    //! At once.
    virtual void Exchange(Items const& gone, Items const& fresh) = 0;
    virtual void RenameAtOnce(Items const& renamed) = 0;

    virtual void Select(Items const& items) = 0;
    //! For each row that was read 1 if it is selected, or else 0.
    virtual void AskSelected(std::vector<char>& out) = 0;
    virtual void ClearSelection() = 0;

    //! Asks for what a widget draws, from the row `first` on.
    virtual void Paint(std::size_t first, Canvas& canvas) = 0;

    //! The items of the rows that were read. Not measured.
    virtual Items GetItems() const = 0;
    //! Frees the handles.
    virtual void Forget() = 0;
};

struct Entrant {
    std::string version;
    std::unique_ptr<Contestant> (*create)(Source& source);
};

//! This library.
Entrant Library();
//! What a machine can do at best that sorts by the same comparison, and looks up rows by numbers.
Entrant Limit();
//! The same, with items that give their keys in place of comparing themselves.
Entrant KeyLimit();
//! A table model over the source, with a proxy that compares the source's items.
Entrant QtModel();
//! A standard model into which the source is copied, with the proxy as it is.
Entrant QtStandard();
//! A list model over the source that makes objects when asked for them.
Entrant GtkModel();
//! A list store of objects.
Entrant GtkStore();

} // namespace zbbench
