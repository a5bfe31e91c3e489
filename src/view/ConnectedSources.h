// SPDX-License-Identifier: MIT
//! \file
//! The data sources of an old view.
#pragma once

#include "containers/PointerList.h"

class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;

namespace zbbrowser::detail {

//! The sources that were accepted by the data control of the time, in the order of connection.
struct ConnectedSources {
    PointerList<zbIBrowserDataSourceSimple> simple;
    PointerList<zbIBrowserDataSourceHierarchical> hierarchical;
};

} // namespace zbbrowser::detail
