// SPDX-License-Identifier: MIT
//! \file
//! What the Qt contestants share: a proxy that sorts, a selection model, and a delegate's
//! questions.
#pragma once

#include "Contestant.h"

#include <QItemSelectionModel>
#include <QSortFilterProxyModel>

namespace zbbench {

class QtTable : public Contestant {
public:
    void Sort(Column column, bool ascending) override;
    void Read() override;
    void Select(Items const& items) override;
    void ClearSelection() override { selection_.clearSelection(); }
    void Paint(std::size_t first, Canvas& canvas) override;
    Items GetItems() const override;
    void Forget() override { QModelIndexList().swap(handles_); }

protected:
    //! \param proxy goes before the models do
    explicit QtTable(std::unique_ptr<QSortFilterProxyModel> proxy)
        : proxy_(std::move(proxy)) {}

    QSortFilterProxyModel& GetProxy() { return *proxy_; }
    QItemSelectionModel& GetSelection() { return selection_; }
    QModelIndexList const& GetHandles() const { return handles_; }

private:
    //! Where an item stands in the source model, and what stands there.
    virtual QModelIndex FindItem(Item const& item) const = 0;
    virtual Item* GetItem(QModelIndex const& source) const = 0;

    std::unique_ptr<QSortFilterProxyModel> const proxy_;
    QItemSelectionModel selection_{proxy_.get()};
    QModelIndexList handles_;
};

Entrant QtEntrant(std::unique_ptr<Contestant> (*create)(Source& source));

} // namespace zbbench
