// SPDX-License-Identifier: MIT
#include "zbbrowse/WriteSelected.h"

#include "zbbrowse/Complaint.h"
#include "zbbrowse/Suggestion.h"

#include <zbBrowserView/platform/zbVariant.h>
#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/sqlite/Transaction.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <set>

namespace zbbrowse {

namespace {

class Writer {
public:
    explicit Writer(zbsqlite::Host& host)
        : host_(host)
        , data_(host.Data()) {}

    void Write(WriteOption const& write) const {
        auto& source = FindList(write.list);
        auto& column = FindColumn(source, write.column);
        for (auto* const row : Selected(source)) {
            data_.SetCurrentDataItem(row);
            if (!column.SetVariant(zbString(write.value)))
                throw zbsqlite::Error(*data_.LastError());
        }
    }

private:
    [[noreturn]] void Refuse(std::string const& what) const {
        throw Complaint(data_.GetDatabase().File() + ": --write: " + what);
    }

    zbsqlite::Source& FindList(std::string const& name) const {
        if (auto* const source = data_.FindDataSourceSimple(name.c_str()))
            return *source;
        std::vector<std::string> names;
        for (auto const& source : data_.Sources())
            names.emplace_back(source->GetName());
        Refuse("no list \"" + name + '"' + NearestNote(name, names));
    }

    zbsqlite::Property& FindColumn(zbsqlite::Source& source, std::string const& name) const {
        if (auto* const column = source.FindDataProperty(name.c_str()))
            return *column;
        std::vector<std::string> names;
        for (auto const& column : source.Properties())
            names.push_back(column.Name());
        Refuse("list \"" + std::string(source.GetName()) + "\" has no column \"" + name + '"' +
               NearestNote(name, names));
    }

    //! Each once, in however many folders it is selected.
    std::set<zbIBrowserDataItemSimple*> Selected(zbsqlite::Source& source) const {
        std::set<zbIBrowserDataItemSimple*> rows;
        host_.View().GetSelectionManager()->GetSelectedDataItemsOfSource(&source, rows, false);
        if (rows.empty())
            Refuse("no row of \"" + std::string(source.GetName()) + "\" is selected");
        return rows;
    }

    zbsqlite::Host& host_;
    zbsqlite::DataCtrl& data_;
};

} // namespace

void WriteSelected(zbsqlite::Host& host, std::vector<WriteOption> const& writes) {
    Writer const writer(host);
    zbsqlite::Transaction transaction(host.Data().GetDatabase());
    for (auto const& write : writes)
        writer.Write(write);
    transaction.Commit();
}

} // namespace zbbrowse
