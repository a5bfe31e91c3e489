// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserManager: the way of a host's manager to the protected operations of its controller.
#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

bool zbBrowserManager::CreateView(zbBrowserViewCtrl& controller, char const* name, bool isNew) {
    return controller.CreateView(name, isNew);
}

bool zbBrowserManager::DeleteView(zbBrowserViewCtrl& controller, zbIBrowserView* view) {
    return controller.DeleteView(view);
}

bool zbBrowserManager::CreateFreeFolder(zbBrowserViewCtrl& controller,
                                        zbIBrowserViewItemFreeFolder* parent,
                                        zbString const& name) {
    return controller.CreateFreeFolder(parent, name);
}

bool zbBrowserManager::DeleteFreeFolder(zbBrowserViewCtrl& controller,
                                        zbIBrowserViewItemFreeFolder* folder, bool flag) {
    return controller.DeleteFreeFolder(folder, flag);
}
