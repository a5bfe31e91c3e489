// SPDX-License-Identifier: MIT
//! \file
//! The style of a column, in views of both generations.
#pragma once

#include <zbBrowserView/zbIBrowserStyle.h>

#include <vector>

class zbBrowserStyleElement;

namespace zbbrowser::detail {
class StyleManagerBase;
class ViewContext;
} // namespace zbbrowser::detail

//! Made by a style manager with `new`; the StyleShelf of its view frees it.
class zbBrowserStyle final : public zbIBrowserStyle {
public:
    using StyleManagerBase = zbbrowser::detail::StyleManagerBase;

    zbBrowserStyle(zbbrowser::detail::ViewContext& context, zbString name);
    zbBrowserStyle(zbBrowserStyle const&) = delete;
    zbBrowserStyle& operator=(zbBrowserStyle const&) = delete;
    //! Silent; takes the elements along that are in the style.
    ~zbBrowserStyle() override;

    char const* GetName() const override { return name_.c_str(); }
    zbIBrowserViewColumn* GetColumn() const override;
    bool GetElements(std::vector<zbIBrowserStyleElement*>& out) const override;
    zbIBrowserStyleElement* FindElement(char const* name) const override;
    bool DeleteElement(zbIBrowserStyleElement* element) override;
    zbIBrowserStyleElement* CreateElement(char const* name, char const* title) override;
    void SetPending(bool pending) override { pending_ = pending; }
    bool IsPending() const override { return pending_; }

    zbString const& Name() const { return name_; }
    std::vector<zbBrowserStyleElement*> const& Elements() const { return elements_; }

    //! The manager in whose list it stands or last stood. Null: none yet, or it has gone.
    StyleManagerBase* Manager() const { return manager_; }
    void SetManager(StyleManagerBase* manager) { manager_ = manager; }

    //! Lets go of an element that is being destroyed.
    void Forget(zbBrowserStyleElement const& element);

private:
    //! Makes the style pending, and says that it has gone if it was not.
    //! \return false if a slot has deleted the style
    bool Withdraw();

    zbbrowser::detail::ViewContext& context_;
    zbString const name_;
    std::vector<zbBrowserStyleElement*> elements_; // In order of creation
    std::vector<zbBrowserStyleElement*> former_;   // Taken out, and still pointing here
    StyleManagerBase* manager_ = nullptr;          // Not owned; may be null
    bool pending_ = true;
};
