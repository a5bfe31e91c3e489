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

class Widget {
public:
    explicit Widget(ColumnHost& host)
        : view_(host.view)
        , rows_(host.rows) {}

    //! Paints the rows from `first` on.
    void Paint(std::size_t first) {
        view_.GetColumns(columns_);
        for (auto row = first; row < first + rowsShown; ++row) {
            for (auto* const column : columns_)
                PaintCell(*column, *rows_[row]);
        }
    }

    //! Elements that had a value.
    std::size_t GetPainted() const { return painted_; }

private:
    void PaintCell(zbIBrowserViewColumn& column, zbIBrowserViewItem& row) {
        auto* const style = view_.GetViewItemStyle(&column, &row);
        if (style == nullptr)
            return;
        style->SetPending(false);
        style->GetElements(elements_);
        for (auto* const element : elements_)
            PaintElement(*element, row);
    }

    void PaintElement(zbIBrowserStyleElement& element, zbIBrowserViewItem& row) {
        if (!ReadValue(*element.GetViewProperty(), row))
            return;
        ++painted_;
        bool bold = false;
        view_.IsTextBold(&row, &element, bold);
        bool italic = false;
        view_.IsTextItalic(&row, &element, italic);
        benchmark::DoNotOptimize(bold);
        benchmark::DoNotOptimize(italic);
    }

    bool ReadValue(zbIBrowserViewProperty& property, zbIBrowserViewItem& row) {
        if (property.GetDataType() == ZBBROWSER_DATA_TYPE_INTEGER)
            return property.GetIntegerValue(&row, number_);
        return property.GetStringValue(&row, text_);
    }

    zbIBrowserView& view_;
    std::vector<zbIBrowserViewItem*> const& rows_;
    std::vector<zbIBrowserViewColumn*> columns_;
    std::vector<zbIBrowserStyleElement*> elements_;
    zbString text_;
    int number_ = 0;
    std::size_t painted_ = 0;
};

//! Frames that begin `step` rows after the one before, round and round.
void Paint(benchmark::State& state, std::size_t step) {
    ColumnHost host(static_cast<std::size_t>(state.range(0)));
    host.Sort(host.name);
    Widget widget(host);
    widget.Paint(0);
    auto const elements = widget.GetPainted();
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
    state.counters["elements"] = static_cast<double>(elements);
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
