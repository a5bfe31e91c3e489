// SPDX-License-Identifier: MIT
//! \file
//! The data control of a RecordingHost, with its references, operations and collectors.
#pragma once

#include "RecordingHostItems.h"

#include <zbBrowserView/host/zbIBrowserCollectorOperation.h>
#include <zbBrowserView/host/zbIBrowserDataCollector.h>
#include <zbBrowserView/host/zbIBrowserDataCollectorType.h>
#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataOperation.h>
#include <zbBrowserView/host/zbIBrowserDataReference.h>

namespace zbtest {

class RecordingDataCtrl;

//! A relation between the types of two sources.
class RecordingReference final : public zbIBrowserDataReference {
public:
    RecordingReference(RecordingHostCalls& calls, RecordingDataCtrl& control, std::string name,
                       zbBrowserTypeId parentType, zbBrowserTypeId childType);

    bool dirty = false;
    [[nodiscard]] std::string const& Name() const { return name_; }

    zbIBrowserDataCtrl* GetDataCtrl() override;
    zbBrowserTypeId GetParentTypeId() override;
    zbBrowserTypeId GetChildTypeId() override;
    bool IsDirty() const override;

private:
    RecordingHostCalls& calls_;
    RecordingDataCtrl& control_;
    std::string name_;
    zbBrowserTypeId parentType_;
    zbBrowserTypeId childType_;
};

//! An operation on data whose answers are set by the test.
class RecordingOperation final : public zbIBrowserDataOperation {
public:
    RecordingOperation(RecordingHostCalls& calls, std::string name);

    bool available = true;
    bool isChecked = false;
    bool result = true;

    char const* GetName() const override;
    bool IsAvailableForItems(zbBrowserDataItemMap& bySource,
                             std::vector<zbIBrowserDataItemSimple*>& simple,
                             std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                             std::vector<zbIBrowserDataItemHierarchical*>& inFolders) override;
    bool IsAvailable(zbBrowserDataItemMap& bySource,
                     std::vector<zbIBrowserDataItemSimple*>& simple) override;
    bool IsChecked(zbBrowserDataItemMap& bySource,
                   std::vector<zbIBrowserDataItemSimple*>& simple) override;
    bool Perform(zbIBrowserSelectionManager* selection) override;

private:
    RecordingHostCalls& calls_;
    std::string name_;
};

class RecordingCollector final : public zbIBrowserDataCollector {
public:
    RecordingCollector(RecordingHostCalls& calls, std::string name, std::string title);

    char const* GetName() const override;
    char const* GetTitle() const override;

private:
    RecordingHostCalls& calls_;
    std::string name_;
    std::string title_;
};

class RecordingCollectorType final : public zbIBrowserDataCollectorType {};

class RecordingCollectorOperation final : public zbIBrowserCollectorOperation {
public:
    RecordingCollectorOperation(RecordingHostCalls& calls, std::string name);

    void Perform(ZBBROWSER_COLSEL_TYPE type) override;

private:
    RecordingHostCalls& calls_;
    std::string name_;
};

//! A data control with the sources that were made in it. Whatever it answers can be set.
class RecordingDataCtrl final : public zbIBrowserDataCtrl {
public:
    RecordingDataCtrl(RecordingHostCalls& calls, std::string name);
    ~RecordingDataCtrl();

    //! Finds a source by its exact name, or makes it.
    [[nodiscard]] RecordingSource& Source(std::string const& name);
    //! Finds a tree by its exact name; throws std::out_of_range if there is none.
    [[nodiscard]] RecordingTree& Tree(std::string const& name);
    //! Makes a tree.
    [[nodiscard]] RecordingTree& Tree(std::string const& name, RecordingSource& ownType);
    //! Frees a source or tree, with its items.
    void DeleteSource(std::string const& name);
    void DeleteTree(std::string const& name);
    RecordingReference& Reference(std::string const& name, RecordingSource& parent,
                                  RecordingSource& child);
    RecordingOperation& Operation(std::string const& name);
    RecordingCollectorType& CollectorType(std::string const& name);

    //! Links two items; `reported` also adds the link to those that GetChangedLinks gives next.
    void Link(RecordingReference& reference, RecordingItem& parent, RecordingItem& child,
              bool reported = false);
    void Unlink(RecordingReference& reference, RecordingItem& parent, RecordingItem& child,
                bool reported = false);

    [[nodiscard]] std::string const& Name() const { return name_; }
    //! It is a source or tree of this control. The pointer is compared and not followed.
    [[nodiscard]] bool Owns(zbIBrowserDataSource const* source) const;

    bool knowsSources = true; //!< False: no source is found by name.
    bool selectionForwardingBlocked = false;
    bool collectorDisabledNew = true;
    bool collectorDisabled = false;
    bool collectorInUse = false;
    //! CompareDataSources decides by the place in here; it decides nothing while one is missing.
    std::vector<zbIBrowserDataSource*> sourceOrder;
    std::set<zbIBrowserDataItem*> dirtyItems;
    std::set<zbIBrowserDataItem*> deletedItems;
    zbIBrowserDataItem* current = nullptr; //!< As set by SetCurrentDataItem.

    char const* GetName() const override;
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) override;
    zbIBrowserDataSourceHierarchical* FindDataSourceHierarchical(char const* name) override;
    bool IsSelectionForwardingBlocked() override;
    bool IsCollectorDisabledNew() override;
    bool IsCollectorDisabled() override;
    void Release(void* reserved) override;
    bool IsCollectorInUse() override;
    zbIBrowserDataOperation* FindDataOperation(char const* name) override;
    bool CompareDataSources(zbIBrowserDataSource* a, zbIBrowserDataSource* b, bool& less) override;
    void SetCurrentDataItem(zbIBrowserDataItem* item) override;
    zbIBrowserDataCollectorType* FindCollectorType(char const* name) override;
    void GetDirtyItems(std::set<zbIBrowserDataSource*>& sources,
                       std::set<zbIBrowserDataItem*>& out) override;
    void GetDeletedItems(std::set<zbIBrowserDataSource*>& sources,
                         std::set<zbIBrowserDataItem*>& out) override;
    void GetItems(std::vector<zbIBrowserDataItem*>& out, zbIBrowserDataReference* reference,
                  zbIBrowserDataSource* source, zbIBrowserDataItem* parent, bool flag) override;
    void GetChangedLinks(std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& removed,
                         std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& added,
                         zbIBrowserDataReference* reference, zbIBrowserDataSource* parentSource,
                         zbIBrowserDataSource* childSource, bool flag) override;

private:
    struct LinkRecord {
        zbIBrowserDataReference* reference;
        RecordingItem* parent;
        RecordingItem* child;
        bool operator==(LinkRecord const&) const = default;
    };
    using Links = std::vector<LinkRecord>;
    using Pairs = std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>;

    static void MoveChanges(Links& from, zbIBrowserDataReference* reference, Pairs& out);

    RecordingHostCalls& calls_;
    std::string name_;
    std::map<std::string, std::unique_ptr<RecordingSource>> sources_;
    std::map<std::string, std::unique_ptr<RecordingTree>> trees_;
    std::map<std::string, std::unique_ptr<RecordingReference>> references_;
    std::map<std::string, std::unique_ptr<RecordingOperation>> operations_;
    std::map<std::string, std::unique_ptr<RecordingCollectorType>> collectorTypes_;
    Links links_;
    Links removed_;
    Links added_;
};

} // namespace zbtest
