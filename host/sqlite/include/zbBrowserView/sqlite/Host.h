// SPDX-License-Identifier: MIT
//! \file
//! A complete host: one database, one controller, one view.
#pragma once

#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Manager.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

class zbBrowserView;
class zbBrowserViewCtrl;
class zbIBrowserView;
class zbIBrowserViewItemFreeFolder;

namespace zbsqlite {

enum class Generation : std::uint8_t { Old, New };

struct HostOptions {
    OpenOptions open;
    std::string viewName = "database";
    Generation generation = Generation::Old;
};

//! A complete host: opens a database, makes a controller and a view, and connects every table and
//! view of the database to it; its "default_name_prop" gives each row its name. What the view shows
//! is up to the program, see also Presentation.h:
//!
//!     zbsqlite::Host host("parts.db");
//!     auto* folder = host.CreateFolder(host.RootFolder(), "Parts");
//!     host.CreateList(folder, *host.Data().FindDataSourceSimple("part"));
//!
//! This is a good place to start a host of one's own from.
class ZBSQLITE_API Host {
public:
    //! Reads the schema; rows are read when a list is made of them.
    //! Failure: throws `Error`.
    explicit Host(std::filesystem::path const& file, HostOptions const& options = {});
    Host(Host const&) = delete;
    Host& operator=(Host const&) = delete;
    ~Host();

    DataCtrl& Data() const { return *data_; }

    //! Slots connect to its signals.
    Manager& GetManager() const { return *manager_; }
    zbBrowserViewCtrl& Controller() const { return *controller_; }
    //! Requires: the old generation.
    zbBrowserView& View() const { return *oldView_; }
    zbIBrowserView& AnyView() const { return *view_; }

    //! The folder that holds all others. Valid as long as the view.
    zbIBrowserViewItemFreeFolder* RootFolder() const;

    //! Makes a folder, or finds the one of that name that is there.
    //! Valid until it is deleted. Null: `parent` is none of this view's folders.
    zbIBrowserViewItemFreeFolder* CreateFolder(zbIBrowserViewItemFreeFolder* parent,
                                               zbString const& name);

    //! Shows a source in a folder; its rows are loaded now, if they have not been.
    //! Failure: false; `source.LastError()` says why, if it is because of the source. A view of the
    //! new generation shows no lists.
    bool CreateList(zbIBrowserViewItemFreeFolder* folder, Source& source);

private:
    void CreateView(HostOptions const& options);
    void ConnectSources();

    // Destroyed from the last to the first: the controller and its views before the data to which
    // they point and the manager to which they report.
    std::unique_ptr<Manager> manager_;
    std::unique_ptr<DataCtrl> data_;
    std::unique_ptr<zbBrowserViewCtrl> controller_;
    zbIBrowserView* view_ = nullptr;   // Owned by the controller; never null once constructed.
    zbBrowserView* oldView_ = nullptr; // The same; null if it is of the new generation.
};

} // namespace zbsqlite
