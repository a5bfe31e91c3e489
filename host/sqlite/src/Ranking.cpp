// SPDX-License-Identifier: MIT
#include "Ranking.h"

#include "Names.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <new>
#include <span>

namespace zbsqlite::detail {

namespace {

constexpr std::size_t kFewRows = 256;
constexpr std::size_t kRowsPerQuestion = 8;

constexpr std::size_t kChunk = 7;     // Bytes of a text that are looked at together.
constexpr std::size_t kMaxChunks = 8; // Texts that are longer alike are compared whole.
constexpr double kExactIntegers = 9007199254740992.0; // 2^53; below it each has a real of its own.

//! Bytes of a text that stand side by side in the order of their heads, and what is left of it.
struct Chunk {
    std::uint64_t head = 0;
    bool hasZero = false;
};

enum class Letters : std::uint8_t { Folded, AsTheyAre };

//! The chunk in the upper bytes, and how much there is from its beginning in the lowest, so that of
//! two texts that are otherwise alike the shorter comes first.
Chunk ChunkOf(std::string_view text, std::size_t number, Letters letters) {
    auto const rest = text.substr(std::min(number * kChunk, text.size()));
    Chunk chunk;
    for (std::size_t i = 0; i < kChunk; ++i) {
        auto byte = i < rest.size() ? rest[i] : '\0';
        chunk.hasZero = chunk.hasZero || (i < rest.size() && byte == '\0');
        if (letters == Letters::Folded)
            byte = Fold(byte);
        chunk.head = chunk.head << 8U | static_cast<unsigned char>(byte);
    }
    chunk.head = chunk.head << 8U | std::min(rest.size(), kChunk + 1);
    return chunk;
}

bool IsLastChunk(std::uint64_t head) {
    return (head & 0xffU) <= kChunk;
}

//! Kinds in their order; integers and reals are one.
enum Kind : std::size_t { kNulls, kNumbers, kTexts, kBlobs, kKinds };

Kind KindOf(Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        return kNulls;
    case ValueKind::Integer:
    case ValueKind::Real:
        return kNumbers;
    case ValueKind::Text:
        return kTexts;
    case ValueKind::Blob:
        break;
    }
    return kBlobs;
}

double AsReal(Value const& number) {
    return number.kind == ValueKind::Integer ? static_cast<double>(number.integer) : number.real;
}

//! A number whose order among unsigned numbers is that of the real.
std::uint64_t OrderedBits(double real) {
    constexpr std::uint64_t sign = std::uint64_t{1} << 63U;
    auto const bits = std::bit_cast<std::uint64_t>(real == 0 ? 0.0 : real); // Not -0.0.
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

//! Sorts rows by a few bytes of each value at a time, which it fetches side by side before each
//! sort, and looks at whole values only where that does not tell them apart.
class Ranker {
public:
    Ranker(RowSlots const& rows, std::size_t column)
        : rows_(rows)
        , column_(column)
        , places_(rows.Size()) {}

    std::vector<std::uint32_t> Run() && {
        SplitByKind();
        MarkEqual(kinds_[kNulls]);
        RankNumbers(kinds_[kNumbers]);
        RankTexts(kinds_[kTexts], 0, Letters::Folded);
        RankTexts(kinds_[kBlobs], 0, Letters::AsTheyAre);
        return std::move(places_);
    }

private:
    struct Key {
        std::uint64_t head;
        std::uint32_t row;
    };
    using Keys = std::span<Key>;

    Value ValueOf(Key const& key) const { return rows_[key.row].GetValue(column_); }

    void SplitByKind() {
        std::array<std::vector<Key>, kKinds> byKind;
        for (std::uint32_t row = 0; row < rows_.Size(); ++row) {
            auto const value = rows_[row].GetValue(column_);
            auto const kind = KindOf(value);
            byKind[kind].push_back({kind == kNumbers ? OrderedBits(AsReal(value)) : 0, row});
        }
        keys_.reserve(rows_.Size());
        for (std::size_t kind = 0; kind < kKinds; ++kind) {
            auto const& keys = byKind[kind];
            auto const begin = keys_.insert(keys_.end(), keys.begin(), keys.end());
            kinds_[kind] = Keys(begin, keys.size());
        }
    }

    //! Sorts by the heads and hands on each group of those with the same.
    template <class Work>
    static void GroupByHead(Keys keys, Work work) {
        std::sort(keys.begin(), keys.end(),
                  [](Key const& a, Key const& b) { return a.head < b.head; });
        while (!keys.empty()) {
            auto const end = std::find_if(keys.begin(), keys.end(), [&](Key const& key) {
                return key.head != keys.front().head;
            });
            auto const size = static_cast<std::size_t>(end - keys.begin());
            work(keys.first(size));
            keys = keys.subspan(size);
        }
    }

    void RankNumbers(Keys keys) {
        GroupByHead(keys, [this](Keys group) {
            if (group.size() > 1 && std::abs(AsReal(ValueOf(group.front()))) >= kExactIntegers)
                RankWhole(group);
            else
                MarkEqual(group);
        });
    }

    //! Requires: texts or blobs that are alike in the chunks before.
    void RankTexts(Keys keys, std::size_t chunk, Letters letters) {
        if (chunk == kMaxChunks || !FetchChunks(keys, chunk, letters)) {
            RankWhole(keys);
            return;
        }
        GroupByHead(keys, [this, chunk, letters](Keys group) {
            if (group.size() > 1 && !IsLastChunk(group.front().head))
                RankTexts(group, chunk + 1, letters);
            else if (group.size() > 1 && letters == Letters::Folded)
                RankTexts(group, 0, Letters::AsTheyAre);
            else
                MarkEqual(group);
        });
    }

    //! False for a text with a zero byte, behind which another order holds.
    bool FetchChunks(Keys keys, std::size_t number, Letters letters) const {
        for (Key& key : keys) {
            auto const chunk = ChunkOf(ValueOf(key).bytes, number, letters);
            if (chunk.hasZero && letters == Letters::Folded)
                return false;
            key.head = chunk.head;
        }
        return true;
    }

    void RankWhole(Keys keys) {
        std::sort(keys.begin(), keys.end(), [this](Key const& a, Key const& b) {
            return Compare(ValueOf(a), ValueOf(b)) < 0;
        });
        while (!keys.empty()) {
            auto const first = ValueOf(keys.front());
            auto const end = std::find_if(keys.begin() + 1, keys.end(), [&](Key const& key) {
                return Compare(ValueOf(key), first) != 0;
            });
            auto const size = static_cast<std::size_t>(end - keys.begin());
            MarkEqual(keys.first(size));
            keys = keys.subspan(size);
        }
    }

    //! Gives all of them the place of the first.
    void MarkEqual(Keys keys) {
        if (keys.empty())
            return;
        auto const place = static_cast<std::uint32_t>(keys.data() - keys_.data());
        for (Key const& key : keys)
            places_[key.row] = place;
    }

    RowSlots const& rows_;
    std::size_t column_;
    std::vector<std::uint32_t> places_;
    std::vector<Key> keys_;
    std::array<Keys, kKinds> kinds_; // Of `keys_`.
};

} // namespace

std::vector<std::uint32_t> RankRows(RowSlots const& rows, std::size_t column) {
    return Ranker(rows, column).Run();
}

int ColumnOrder::Compare(RowSlots const& rows, std::size_t column, Row const& a, Row const& b) {
    if (!IsRanked(rows, column))
        return zbsqlite::Compare(a.GetValue(column), b.GetValue(column));
    auto const placeOfA = places_[rows.SlotOf(&a)];
    auto const placeOfB = places_[rows.SlotOf(&b)];
    return placeOfA < placeOfB ? -1 : (placeOfB < placeOfA ? 1 : 0);
}

bool ColumnOrder::IsRanked(RowSlots const& rows, std::size_t column) {
    if (!places_.empty())
        return true;
    if (rows.Size() < kFewRows || ++asked_ < rows.Size() / kRowsPerQuestion ||
        rows.Size() > std::numeric_limits<std::uint32_t>::max())
        return false;
    try {
        places_ = RankRows(rows, column);
    } catch (std::bad_alloc const&) {
        asked_ = 0; // It works without, only slower.
    }
    return !places_.empty();
}

} // namespace zbsqlite::detail
