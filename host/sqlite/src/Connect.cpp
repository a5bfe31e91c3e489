// SPDX-License-Identifier: MIT
#include "Connect.h"

#include <zbBrowserView/sqlite/Source.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>

namespace zbsqlite::detail {

bool Connect(zbIBrowserView& view, zbIBrowserViewProperty* property, Source& source,
             zbIBrowserDataProperty* dataProperty) {
    if (view.IsNewView())
        return static_cast<zbbrowser::View&>(view).CreateVPConnect(property, &source, dataProperty);
    return static_cast<zbBrowserView&>(view).CreateVPConnect(property, &source, dataProperty);
}

bool Connect(zbIBrowserView& view, Source& source) {
    return view.IsNewView() ? view.Connect(static_cast<zbIBrowserDataSource*>(&source), true)
                            : view.DataSourceConnect(&source);
}

void ConnectWithNames(zbIBrowserView& view, Source& source) {
    Connect(view, source);
    auto* const name = view.FindViewProperty(zbBrowserView::DEFAULT_NAME_PROP);
    Connect(view, name, source, &source.NameProperty());
}

bool Disconnect(zbIBrowserView& view, Source& source) {
    return view.IsNewView() ? view.Connect(static_cast<zbIBrowserDataSource*>(&source), false)
                            : view.DataSourceDisconnect(source.GetName());
}

} // namespace zbsqlite::detail
