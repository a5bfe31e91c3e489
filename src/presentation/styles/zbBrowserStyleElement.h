// SPDX-License-Identifier: MIT
//! \file
//! The element of a style, in views of both generations.
#pragma once

#include <zbBrowserView/zbIBrowserStyleElement.h>

class zbBrowserStyle;

namespace zbbrowser::detail {
class ViewContext;
}

//! Made by zbBrowserStyle::CreateElement with `new`; the StyleShelf of its view frees it.
class zbBrowserStyleElement final : public zbIBrowserStyleElement {
public:
    zbBrowserStyleElement(zbbrowser::detail::ViewContext& context, zbString name, zbString title);
    zbBrowserStyleElement(zbBrowserStyleElement const&) = delete;
    zbBrowserStyleElement& operator=(zbBrowserStyleElement const&) = delete;
    ~zbBrowserStyleElement() override;

    zbIBrowserStyle* GetStyle() const override;
    char const* GetName() const override { return name_.c_str(); }
    char const* GetTitle() const override { return title_.c_str(); }
    char const* GetGuiMapName() const override { return guiMapName_.c_str(); }
    bool SetGuiMapName(zbString const& name) override;
    zbIBrowserViewProperty* GetViewProperty() const override { return property_; }
    bool SetViewProperty(zbIBrowserViewProperty* property) override;
    zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSource* source) override;

    //! It has the name of an element of the default style and stays where it is.
    bool IsProtected() const;

    void SetStyle(zbBrowserStyle* style) { style_ = style; }

    static constexpr char const* defaultIconName = "default_style_elem_icon";
    static constexpr char const* defaultNameName = "default_style_elem_name";

private:
    zbbrowser::detail::ViewContext& context_;
    zbBrowserStyle* style_ = nullptr; // Not owned; null before it is added and once the style went
    zbString const name_;
    zbString const title_;
    zbString guiMapName_;
    zbIBrowserViewProperty* property_ = nullptr; // Not owned; null without a binding
};
