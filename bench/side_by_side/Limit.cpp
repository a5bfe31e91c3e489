// SPDX-License-Identifier: MIT
#include "Contestant.h"
#include "PointerSet.h"
#include "RadixSort.h"

#include <algorithm>
#include <string_view>

namespace zbbench {

namespace {

//! Plain arrays. What comes and goes is noted down, and settled all at once.
class LimitContestant : public Contestant {
public:
    explicit LimitContestant(Source& source)
        : source_(source) {}

    void Attach() override {
        rows_.reserve(source_.Items().size());
        for (auto& item : source_.Items())
            rows_.push_back(&item);
    }
    void Sort(Column column, bool ascending) override {
        if (!isSorted_ || column != column_)
            SortAll(rows_, column);
        else if (ascending != ascending_)
            std::reverse(rows_.begin(), rows_.end());
        isSorted_ = true;
        column_ = column;
        ascending_ = ascending;
    }
    void Read() override {
        Settle();
        handles_ = rows_;
    }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh)
            fresh_.push_back(item);
        SettleUnsorted();
    }
    void Remove(Items const& gone) override {
        for (auto* const item : gone)
            gone_.Add(item);
        std::erase_if(fresh_, [this](Item const* item) { return gone_.Contains(item); });
        SettleUnsorted();
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed)
            source_.Rename(*item);
        RenameAtOnce(renamed);
    }
    void Exchange(Items const& gone, Items const& fresh) override {
        Insert(fresh);
        Remove(gone);
    }
    void RenameAtOnce(Items const& renamed) override {
        for (auto* const item : renamed) {
            gone_.Add(item);
            fresh_.push_back(item);
        }
    }

    void Select(Items const& items) override {
        selected_.resize(source_.Items().size());
        for (auto* const item : items)
            selected_[item->GetId()] = 1;
    }
    void AskSelected(std::vector<char>& out) override {
        for (std::size_t i = 0; i < handles_.size(); ++i)
            out[i] = selected_[handles_[i]->GetId()];
    }
    void ClearSelection() override { std::fill(selected_.begin(), selected_.end(), '\0'); }

    void Paint(std::size_t first, Canvas& canvas) override {
        for (auto row = first; row < first + rowsShown; ++row)
            PaintRow(*handles_[row], canvas);
    }

    Items GetItems() const override { return handles_; }
    void Forget() override { Items().swap(handles_); }

protected:
    virtual void SortAll(Items& items, Column column) const {
        std::stable_sort(items.begin(), items.end(), [column](Item const* a, Item const* b) {
            return IsBefore(*a, *b, column);
        });
    }

private:
    static void PaintRow(Item const& item, Canvas& canvas) {
        auto const bold = item.GetNumber() % 2 == 0;
        canvas.Icon();
        for (auto column = 0; column < 2; ++column) {
            std::string_view const name = item.GetName();
            canvas.Text(static_cast<unsigned char>(name.front()), name.size());
            canvas.Look(bold, bold);
            canvas.Number(item.GetNumber());
            canvas.Look(bold, bold);
        }
    }

    void SettleUnsorted() {
        if (!isSorted_)
            Settle();
    }
    void Settle() {
        if (!gone_.IsEmpty())
            std::erase_if(rows_, [this](Item const* item) { return gone_.Contains(item); });
        gone_.Clear();
        if (isSorted_)
            MergeFresh();
        else
            rows_.insert(rows_.end(), fresh_.begin(), fresh_.end());
        fresh_.clear();
    }
    //! Looks for the place of each, from behind, and moves what stands between them in blocks.
    void MergeFresh() {
        auto const isBefore = [this](Item const* a, Item const* b) {
            return ascending_ ? IsBefore(*a, *b, column_) : IsBefore(*b, *a, column_);
        };
        std::sort(fresh_.begin(), fresh_.end(), isBefore);
        auto behind = rows_.size();
        rows_.resize(behind + fresh_.size());
        auto const begin = rows_.begin();
        for (auto left = fresh_.size(); left != 0; --left) {
            auto* const item = fresh_[left - 1];
            auto const end = begin + static_cast<std::ptrdiff_t>(behind);
            auto const place = std::upper_bound(begin, end, item, isBefore);
            auto const to = std::move_backward(place, end, end + static_cast<std::ptrdiff_t>(left));
            *(to - 1) = item;
            behind = static_cast<std::size_t>(place - begin);
        }
    }

    Source& source_;
    Items rows_;
    Items handles_;
    Items fresh_;
    PointerSet gone_;
    std::vector<char> selected_; // By identity
    Column column_ = Column::Name;
    bool isSorted_ = false;
    bool ascending_ = true;
};

struct KeyedItem {
    std::array<std::uint64_t, 2> key;
    Item* item;
};

//! Asks each item for its key once. The items are in the order of their identities.
class KeyLimitContestant final : public LimitContestant {
public:
    using LimitContestant::LimitContestant;

private:
    void SortAll(Items& items, Column column) const override {
        if (column == Column::Name)
            SortByName(items);
        else
            SortByNumber(items);
    }
    static void SortByNumber(Items& items) {
        RadixSort(items,
                  [](Item const* item) { return static_cast<std::uint32_t>(item->GetNumber()); });
        for (auto next = items.begin(); next != items.end();) {
            auto const first = next++;
            while (next != items.end() && (*next)->GetNumber() == (*first)->GetNumber())
                ++next;
            if (next - first > 1)
                std::sort(first, next, [](Item const* a, Item const* b) {
                    return IsBefore(*a, *b, Column::Name);
                });
        }
    }
    static void SortByName(Items& items) {
        std::vector<KeyedItem> keyed;
        keyed.reserve(items.size());
        for (auto* const item : items)
            keyed.push_back({item->GetNameKey(), item});
        std::sort(keyed.begin(), keyed.end(), [](KeyedItem const& a, KeyedItem const& b) {
            return a.key != b.key ? a.key < b.key : a.item->GetId() < b.item->GetId();
        });
        std::transform(keyed.begin(), keyed.end(), items.begin(),
                       [](KeyedItem const& each) { return each.item; });
    }
};

} // namespace

Entrant Limit() {
    return {"arrays", [](Source& source) -> std::unique_ptr<Contestant> {
                return std::make_unique<LimitContestant>(source);
            }};
}

Entrant KeyLimit() {
    return {"arrays of keys", [](Source& source) -> std::unique_ptr<Contestant> {
                return std::make_unique<KeyLimitContestant>(source);
            }};
}

} // namespace zbbench
