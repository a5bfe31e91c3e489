// SPDX-License-Identifier: MIT
// Painting 50 rows by 4 columns, asking the view for each cell what a widget would ask.
#include "ColumnHost.h"
#include "CountingNew.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <benchmark/benchmark.h>

using zbbench::ColumnHost;

namespace {

constexpr std::size_t rowsShown = 50;

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
}

//! Reads a frame as a widget does: the columns anew each time, the elements of a column again where
//! the style is another one or pending.
class Widget {
public:
    explicit Widget(ColumnHost& host)
        : view_(host.view)
        , rows_(host.rows) {}

    //! Paints the rows from `first` on.
    void Paint(std::size_t first) {
        view_.GetColumns(columns_);
        cells_.resize(columns_.size());
        for (auto& cell : cells_)
            cell.style = nullptr;
        for (auto row = first; row < first + rowsShown; ++row) {
            for (std::size_t i = 0; i < columns_.size(); ++i)
                PaintCell(*columns_[i], cells_[i], *rows_[row]);
        }
    }

    //! Values and looks so far.
    std::size_t GetValues() const { return values_; }
    std::size_t GetLooks() const { return looks_; }

private:
    struct Cell {
        zbIBrowserStyle* style = nullptr; // Of the row before; null: none
        std::vector<zbIBrowserStyleElement*> elements;
    };

    void PaintCell(zbIBrowserViewColumn& column, Cell& cell, zbIBrowserViewItem& row) {
        auto* const style = view_.GetViewItemStyle(&column, &row);
        if (style == nullptr)
            return;
        if (style != cell.style || style->IsPending()) {
            cell.style = style;
            style->GetElements(cell.elements);
            style->SetPending(false);
        }
        for (auto* const element : cell.elements)
            values_ += ReadValue(*element->GetViewProperty(), row) ? 1U : 0U;
        ReadLook(*cell.elements.back(), row); // What stands before the text is an icon
    }

    bool ReadValue(zbIBrowserViewProperty& property, zbIBrowserViewItem& row) {
        if (property.GetDataType() == ZBBROWSER_DATA_TYPE_INTEGER)
            return property.GetIntegerValue(&row, number_);
        return property.GetStringValue(&row, text_);
    }

    void ReadLook(zbIBrowserStyleElement& element, zbIBrowserViewItem& row) {
        bool bold = false;
        bool italic = false;
        if (view_.IsTextBold(&row, &element, bold) && view_.IsTextItalic(&row, &element, italic))
            ++looks_;
        benchmark::DoNotOptimize(bold);
        benchmark::DoNotOptimize(italic);
    }

    zbIBrowserView& view_;
    std::vector<zbIBrowserViewItem*> const& rows_;
    std::vector<zbIBrowserViewColumn*> columns_;
    std::vector<Cell> cells_;
    zbString text_;
    int number_ = 0;
    std::size_t values_ = 0;
    std::size_t looks_ = 0;
};

//! Frames that begin `step` rows after the one before, round and round.
void Paint(benchmark::State& state, std::size_t step) {
    ColumnHost host(static_cast<std::size_t>(state.range(0)));
    host.Sort(host.name);
    Widget widget(host);
    widget.Paint(0);
    if (widget.GetValues() != 5 * rowsShown || widget.GetLooks() != 4 * rowsShown)
        state.SkipWithError("cells are missing");
    auto const allocations = zbbench::Allocations();
    auto const places = host.rows.size() - rowsShown;
    std::size_t first = places / 2;
    for (auto _ : state) {
        widget.Paint(first);
        first = (first + step) % places;
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(zbbench::Allocations() - allocations),
                           benchmark::Counter::kAvgIterations);
}

//! The same rows time and again.
void PaintAgain(benchmark::State& state) {
    Paint(state, 0);
}
BENCHMARK(PaintAgain)->Apply(Sizes);

//! Other rows each time. Where they do not fit the caches, memory is waited for.
void PaintPages(benchmark::State& state) {
    Paint(state, rowsShown);
}
BENCHMARK(PaintPages)->Apply(Sizes);

} // namespace
