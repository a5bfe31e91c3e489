// SPDX-License-Identifier: MIT
#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <cstdio>
#include <exception>
#include <vector>

int main(int argc, char** argv) try {
    if (argc != 3)
        return std::fprintf(stderr, "usage: %s DATABASE TABLE\n", argv[0]), 2;
    zbsqlite::Host host(argv[1]); // Manager, controller and data; and a view of all of it.
    auto* const source = host.Data().FindDataSourceSimple(argv[2]);
    auto* const folder = host.CreateFolder(host.RootFolder(), "Mine");
    if (source == nullptr || !host.CreateList(folder, *source))
        return std::fprintf(stderr, "cannot list %s\n", argv[2]), 2;

    std::vector<zbIBrowserViewItem*> rows;
    host.View().GetChildren(rows, folder);
    std::printf("%s: %zu rows of %s\n", folder->GetName(), rows.size(), source->GetName());
    for (auto* const row : rows) {
        zbString name;
        row->GetDataItemSimple()->GetProperty("name", name);
        std::printf("  %s\n", name.c_str());
    }
} catch (std::exception const& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
