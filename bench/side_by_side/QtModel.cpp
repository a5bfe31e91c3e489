// SPDX-License-Identifier: MIT
#include "QtTable.h"

#include <algorithm>
#include <array>
#include <QAbstractTableModel>
#include <QFont>
#include <QIcon>

namespace zbbench {

namespace {

Item* ItemOf(QModelIndex const& index) {
    return static_cast<Item*>(index.internalPointer());
}

//! The items of a source in the order of their identities.
class Model final : public QAbstractTableModel {
public:
    //! All anew.
    void Reset(Source& source) {
        beginResetModel();
        items_.clear();
        items_.reserve(source.Items().size());
        for (auto& item : source.Items()) {
            if (item.isListed)
                items_.push_back(&item);
        }
        endResetModel();
    }
    void Append(Item* item) {
        auto const row = rowCount({});
        beginInsertRows({}, row, row);
        items_.push_back(item);
        endInsertRows();
    }
    void Remove(Item const& item) {
        auto const row = FindRow(item);
        beginRemoveRows({}, row, row);
        items_.erase(items_.begin() + row);
        endRemoveRows();
    }
    void Change(Item const& item) {
        auto const row = FindRow(item);
        emit dataChanged(index(row, 0, {}), index(row, 2, {}), {Qt::DisplayRole});
    }
    int FindRow(Item const& item) const {
        auto const found =
            std::lower_bound(items_.begin(), items_.end(), item.GetId(),
                             [](Item const* each, std::uint32_t id) { return each->GetId() < id; });
        return static_cast<int>(found - items_.begin());
    }

    QModelIndex index(int row, int column, QModelIndex const&) const override {
        return createIndex(row, column, items_[static_cast<std::size_t>(row)]);
    }
    int rowCount(QModelIndex const& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(items_.size());
    }
    int columnCount(QModelIndex const& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(columnsShown);
    }
    QVariant data(QModelIndex const& index, int role) const override {
        auto const& item = *ItemOf(index);
        switch (role) {
        case Qt::DisplayRole:
            return index.column() % 2 == 0 ? QVariant(QString::fromLatin1(item.GetName()))
                                           : QVariant(item.GetNumber());
        case Qt::DecorationRole:
            return index.column() == 0 ? icon_ : QVariant();
        case Qt::FontRole:
            return fonts_[item.GetNumber() % 2 == 0 ? 1 : 0];
        default:
            return {};
        }
    }

private:
    static QFont Font(bool stressed) {
        QFont font;
        font.setBold(stressed);
        font.setItalic(stressed);
        return font;
    }

    Items items_;
    QVariant const icon_ = QIcon();
    std::array<QVariant, 2> const fonts_{Font(false), Font(true)};
};

class Proxy final : public QSortFilterProxyModel {
    bool lessThan(QModelIndex const& left, QModelIndex const& right) const override {
        return IsBefore(*ItemOf(left), *ItemOf(right),
                        left.column() == 0 ? Column::Name : Column::Number);
    }
};

class QtModelContestant final : public QtTable {
public:
    explicit QtModelContestant(Source& source)
        : QtTable(std::make_unique<Proxy>())
        , source_(source) {
        GetProxy().setSourceModel(&model_);
    }

    void Attach() override {
        model_.Reset(source_);
        GetProxy().rowCount(); // The proxy does its part when first asked
    }

    void Insert(Items const& fresh) override {
        for (auto* const item : fresh)
            model_.Append(item);
    }
    void Remove(Items const& gone) override {
        for (auto* const item : gone)
            model_.Remove(*item);
    }
    void Rename(Items const& renamed) override {
        for (auto* const item : renamed) {
            source_.Rename(*item);
            model_.Change(*item);
        }
    }
    void Exchange(Items const&, Items const&) override { model_.Reset(source_); }
    //! Sorting once is quicker than having the proxy move each row.
    void RenameAtOnce(Items const& renamed) override {
        GetProxy().setDynamicSortFilter(false);
        for (auto const* const item : renamed)
            model_.Change(*item);
        GetProxy().setDynamicSortFilter(true);
    }

    //! isSelected() looks through all ranges each time.
    void AskSelected(std::vector<char>& out) override {
        std::fill(out.begin(), out.end(), '\0');
        for (auto const& range : GetSelection().selection())
            std::fill(out.begin() + range.top(), out.begin() + range.bottom() + 1, '\1');
    }

private:
    QModelIndex FindItem(Item const& item) const override {
        return model_.index(model_.FindRow(item), 0, {});
    }
    Item* GetItem(QModelIndex const& source) const override { return ItemOf(source); }

    Source& source_;
    Model model_;
};

} // namespace

Entrant QtModel() {
    return QtEntrant([](Source& source) -> std::unique_ptr<Contestant> {
        return std::make_unique<QtModelContestant>(source);
    });
}

} // namespace zbbench
