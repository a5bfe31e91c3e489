// SPDX-License-Identifier: MIT
//! \file
//! What the stand-ins for both view classes have in common.
#pragma once

#include "SilentView.h"
#include "support/RecordingHostCalls.h"

#include <string>
#include <vector>

class zbBrowserViewCtrl;
class zbIBrowserDataItem;

namespace zbtest {

//! Where the stand-ins report. Set by the test's fixture, since the registry makes the views
//! itself.
inline RecordingHostCalls* viewCalls = nullptr;

//! A view that reports each call as "name.Operation arguments", so that a test sees which view the
//! controller or its registry reached, with what, and in which order.
class RecordedView : public SilentView {
public:
    RecordedView(zbBrowserViewCtrl const* ctrl, zbString const& name);
    RecordedView(RecordedView const&) = delete;
    RecordedView& operator=(RecordedView const&) = delete;
    virtual ~RecordedView();

    bool answer = true;             //!< Of all operations that give a bool.
    bool hasSource = true;          //!< False: it does not know any source.
    zbIBrowserViewCtrl* controller; //!< What GetViewCtrl answers.

    using SilentView::GetDataSourceHierarchical;
    using SilentView::GetDataSourceSimple;

    zbIBrowserViewCtrl* GetViewCtrl() const override { return controller; }
    void SetDataCtrl(zbIBrowserDataCtrl* const ctrl) override;
    zbIBrowserDataCtrl* GetDataCtrl() const override { return dataCtrl_; }
    zbIBrowserDataSourceSimple*
    GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const override;
    zbIBrowserDataSourceHierarchical*
    GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const override;
    bool DataSourceConnect(zbIBrowserDataSourceHierarchical* source) override;
    bool DataSourceConnect(zbIBrowserDataSourceSimple* source) override;
    bool DataSourceDisconnect(char const* name) override;
    bool CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                          zbString const& name) override;
    bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool deleteContent) override;
    void OnBrowserColPerform() override;
    void OnBrowserColDeselected() override;
    void OnBrowserColDisabled(bool disabled) override;
    void SetCollectorEnable(bool enable) override;
    void ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD button, bool show) override;
    bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation) const override;
    char const* GetCollectorGuiMapName() const override { return "collector map"; }
    void DeselectAllViewItems() override;
    void OnSelectionChangeFinished() override;

    void OnGuiMapDeleted(zbString const& name);
    void OnPopupSelection(bool flag);
    void OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const& items, bool select,
                               bool clear);
    bool IsViewItemSelected(zbIBrowserViewItem* item);

protected:
    bool Report(char const* operation,
                std::initializer_list<std::string_view> arguments = {}) const;
    static std::string Text(void const* object) { return viewCalls->NameOf(object); }
    static std::string Text(bool flag) { return flag ? "true" : "false"; }
    template <class T>
    static std::string Text(std::vector<T*> const& objects) {
        std::string text = "[";
        for (void const* object : objects)
            text.append(text.size() > 1 ? " " : "").append(Text(object));
        return text + "]";
    }

private:
    zbIBrowserDataCtrl* dataCtrl_ = nullptr;
};

} // namespace zbtest
