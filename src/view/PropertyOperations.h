// SPDX-License-Identifier: MIT
//! \file
//! The operations of both views on their properties.
#pragma once

#include <zbBrowserView/zbBrowserEnums.h>

#include <vector>

class zbIBrowserDataProperty;
class zbIBrowserDataSource;
class zbIBrowserViewProperty;
class zbString;

namespace zbbrowser::detail {

class ViewContext;

//! \name What zbIBrowserView and the views say
//! Null, false or nothing while the view has no list of properties.
//! \{
zbIBrowserViewProperty* FindViewProperty(ViewContext const& context, zbString const& name);
void CreateViewProperty(ViewContext& context, char const* name);
void CreateDefaultViewProperties(ViewContext& context);
bool DeleteViewProperty(ViewContext& context, zbIBrowserViewProperty* property);
bool GetViewPropertyList(ViewContext const& context, std::vector<zbIBrowserViewProperty*>& out);
void UpdateViewPropertyType(ViewContext& context, zbString const& name, ZBBROWSER_DATA_TYPE type);
bool CreateVPConnect(ViewContext& context, zbIBrowserViewProperty* property,
                     zbIBrowserDataSource* source, zbIBrowserDataProperty* dataProperty);
bool CreateVPConnect(ViewContext& context, zbIBrowserViewProperty* property, char const* script);
bool DeleteVPConnect(ViewContext& context, zbIBrowserViewProperty* property,
                     zbIBrowserDataSource* source);
//! \}

//! Deletes the list with all properties. The columns are told of each, so that none goes on
//! pointing at it.
void DeleteViewProperties(ViewContext& context);

} // namespace zbbrowser::detail
