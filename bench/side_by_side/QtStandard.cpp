// SPDX-License-Identifier: MIT
#include "QtTable.h"

#include <QHash>
#include <QStandardItemModel>

namespace zbbench {

namespace {

constexpr int itemRole = Qt::UserRole + 1;

QFont Font(bool stressed) {
    QFont font;
    font.setBold(stressed);
    font.setItalic(stressed);
    return font;
}

class QtStandardContestant final : public QtTable {
public:
    explicit QtStandardContestant(Source& source)
        : QtTable(std::make_unique<QSortFilterProxyModel>())
        , source_(source) {
        GetProxy().setSortCaseSensitivity(Qt::CaseInsensitive);
        model_.setColumnCount(static_cast<int>(columnsShown));
        GetProxy().setSourceModel(&model_);
    }

    void Attach() override {
        GetProxy().setSourceModel(nullptr); // Nobody follows while the model is filled
        for (auto& item : source_.Items())
            Append(item);
        GetProxy().setSourceModel(&model_);
        GetProxy().rowCount();
    }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh)
            Append(*item);
    }
    void Remove(Items const& gone) override {
        for (auto* const item : gone)
            model_.removeRow(cells_.take(item)->row());
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed) {
            source_.Rename(*item);
            Change(*item);
        }
    }
    void Exchange(Items const& gone, Items const& fresh) override {
        GetProxy().setDynamicSortFilter(false);
        Insert(fresh);
        Remove(gone);
        GetProxy().setDynamicSortFilter(true);
    }
    void RenameAtOnce(Items const& renamed) override {
        GetProxy().setDynamicSortFilter(false);
        for (auto const* const item : renamed)
            Change(*item);
        GetProxy().setDynamicSortFilter(true);
    }

    void AskSelected(std::vector<char>& out) override {
        for (std::size_t i = 0; i < out.size(); ++i) {
            auto const& handle = GetHandles()[static_cast<qsizetype>(i)];
            out[i] = GetSelection().isSelected(handle) ? 1 : 0;
        }
    }

private:
    void Append(Item& item) {
        auto* const name = new QStandardItem(QIcon(), QString::fromLatin1(item.GetName()));
        name->setData(QVariant::fromValue<void*>(&item), itemRole);
        cells_.insert(&item, name);
        auto* const text = new QStandardItem(name->text());
        QList const row{name, NewNumber(item), text, NewNumber(item)};
        for (auto* const cell : row)
            cell->setFont(fonts_[item.GetNumber() % 2 == 0 ? 1 : 0]);
        model_.appendRow(row);
    }
    void Change(Item const& item) {
        auto const text = QString::fromLatin1(item.GetName());
        auto* const cell = cells_.value(&item);
        cell->setText(text);
        model_.item(cell->row(), 2)->setText(text);
    }
    static QStandardItem* NewNumber(Item const& item) {
        auto* const cell = new QStandardItem;
        cell->setData(item.GetNumber(), Qt::DisplayRole);
        return cell;
    }

    QModelIndex FindItem(Item const& item) const override { return cells_.value(&item)->index(); }
    Item* GetItem(QModelIndex const& source) const override {
        return static_cast<Item*>(model_.data(source, itemRole).value<void*>());
    }

    Source& source_;
    QStandardItemModel model_;
    QHash<Item const*, QStandardItem*> cells_; // The name cell of each row
    QFont const fonts_[2]{Font(false), Font(true)};
};

} // namespace

Entrant QtStandard() {
    return QtEntrant([](Source& source) -> std::unique_ptr<Contestant> {
        return std::make_unique<QtStandardContestant>(source);
    });
}

} // namespace zbbench
