// SPDX-License-Identifier: MIT
#include "Ranking.h"

#include "Names.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <new>

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
    Ranker(std::span<Row const> rows, std::size_t column)
        : rows_(rows)
        , column_(column)
        , places_(rows.size()) {}

    std::vector<std::uint32_t> Run() && {
        SplitByKind();
        MarkEqual(nulls_);
        RankNumbers();
        RankTexts(texts_, 0, Letters::Folded);
        RankTexts(blobs_, 0, Letters::AsTheyAre);
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
        std::vector<Key> numbers;
        std::vector<Key> texts;
        std::vector<Key> blobs;
        for (std::uint32_t row = 0; row < rows_.size(); ++row) {
            Key key{0, row};
            auto const value = ValueOf(key);
            switch (value.kind) {
            case ValueKind::Null:
                keys_.push_back(key);
                break;
            case ValueKind::Integer:
            case ValueKind::Real:
                key.head = OrderedBits(AsReal(value));
                numbers.push_back(key);
                break;
            case ValueKind::Text:
                texts.push_back(key);
                break;
            case ValueKind::Blob:
                blobs.push_back(key);
                break;
            }
        }
        auto const nulls = keys_.size();
        keys_.insert(keys_.end(), numbers.begin(), numbers.end());
        keys_.insert(keys_.end(), texts.begin(), texts.end());
        keys_.insert(keys_.end(), blobs.begin(), blobs.end());
        Keys const all(keys_);
        nulls_ = all.first(nulls);
        numbers_ = all.subspan(nulls, numbers.size());
        texts_ = all.subspan(nulls + numbers.size(), texts.size());
        blobs_ = all.last(blobs.size());
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

    void RankNumbers() {
        GroupByHead(numbers_, [this](Keys group) {
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
            if (group.size() == 1)
                MarkEqual(group);
            else if (!IsLastChunk(group.front().head))
                RankTexts(group, chunk + 1, letters);
            else if (letters == Letters::Folded)
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

    std::span<Row const> rows_;
    std::size_t column_;
    std::vector<std::uint32_t> places_;
    std::vector<Key> keys_;
    Keys nulls_;
    Keys numbers_;
    Keys texts_;
    Keys blobs_;
};

} // namespace

std::vector<std::uint32_t> RankRows(std::span<Row const> rows, std::size_t column) {
    return Ranker(rows, column).Run();
}

int ColumnOrder::Compare(std::span<Row const> rows, std::size_t column, Row const& a,
                         Row const& b) {
    if (!IsRanked(rows, column))
        return zbsqlite::Compare(a.GetValue(column), b.GetValue(column));
    auto const placeOfA = places_[static_cast<std::size_t>(&a - rows.data())];
    auto const placeOfB = places_[static_cast<std::size_t>(&b - rows.data())];
    return placeOfA < placeOfB ? -1 : (placeOfB < placeOfA ? 1 : 0);
}

bool ColumnOrder::IsRanked(std::span<Row const> rows, std::size_t column) {
    if (!places_.empty())
        return true;
    if (rows.size() < kFewRows || ++asked_ < rows.size() / kRowsPerQuestion ||
        rows.size() > std::numeric_limits<std::uint32_t>::max())
        return false;
    try {
        places_ = RankRows(rows, column);
    } catch (std::bad_alloc const&) {
        asked_ = 0; // It works without, only slower.
    }
    return !places_.empty();
}

} // namespace zbsqlite::detail
