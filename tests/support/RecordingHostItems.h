// SPDX-License-Identifier: MIT
//! \file
//! Data items, sources and properties of a RecordingHost.
#pragma once

#include "RecordingHostCalls.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>

#include <deque>
#include <memory>
#include <optional>

namespace zbtest {

class RecordingDataCtrl;
class RecordingSource;

//! A flat item. Its values are by the name of the property; "name" and "id" are always there.
class RecordingItem final : public zbIBrowserDataItemSimple {
public:
    RecordingItem(RecordingHostCalls& calls, RecordingSource* source, std::string name, int id);

    RecordingItem& Set(std::string const& property, zbVariant value);
    [[nodiscard]] std::optional<zbVariant> Value(std::string const& property) const;
    [[nodiscard]] std::string const& Name() const { return name_; }
    void Rename(std::string name);
    [[nodiscard]] int Id() const { return id_; }

    bool dirty = false;
    RecordingSource* source; //!< May be set to null or to another source.

    zbIBrowserDataSourceSimple* GetDataSource() const override;
    bool GetProperty(char const* key, zbString& value) override;
    bool IsDirty() const override;

private:
    RecordingHostCalls& calls_;
    std::string name_;
    int id_;
    std::map<std::string, zbVariant> values_;
};

//! A property that reads the value of its own name from RecordingItems, in each form that fits the
//! value's kind: whole numbers as integer, unsigned (unless negative) and double, any kind as text.
class RecordingProperty final : public zbIBrowserDataProperty {
public:
    RecordingProperty(RecordingHostCalls& calls, RecordingDataCtrl* control, std::string name);

    [[nodiscard]] std::string const& Name() const { return name_; }
    bool readable = true; //!< False: every reader fails.

    bool GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                        zbString& out) override;
    bool GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, int& out) override;
    bool GetUnsigned(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, unsigned& out) override;
    bool GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, bool& out) override;
    char const* GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem* parent) override;
    bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) override;
    bool GetDouble(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, double& out) override;
    bool GetVariant(zbVariant& out) override;
    bool SetVariant(zbVariant value) override;

private:
    [[nodiscard]] std::optional<zbVariant> Read(char const* reader, zbIBrowserDataItem* item) const;

    RecordingHostCalls& calls_;
    RecordingDataCtrl* control_; // Not owned; null for a property without a data control.
    std::string name_;
    zbString lastText_;
};

//! The answers that flat sources and trees have in common. Not a host interface itself, since the
//! two interfaces each have a base of their own.
class RecordingSourceAnswers {
public:
    RecordingSourceAnswers(RecordingHostCalls& calls, RecordingDataCtrl* control, std::string name);

    [[nodiscard]] RecordingProperty& Property(std::string const& name); //!< Made if need be.

    RecordingDataCtrl* control; //!< Not owned; may be null.
    zbBrowserTypeId typeId;     //!< Differs from source to source at first.
    bool dirty = false;
    bool compares = true; //!< False: the comparisons decide nothing.

protected:
    ~RecordingSourceAnswers() = default;

    [[nodiscard]] RecordingProperty* Find(char const* name);
    bool Compare(char const* operation, std::string const& property, zbIBrowserDataItem* a,
                 zbIBrowserDataItem* b, int& cmp);

    RecordingHostCalls& calls_;
    std::string name_;
    std::map<std::string, std::unique_ptr<RecordingProperty>> properties_;
    RecordingProperty* sortProperty_ = nullptr; // Not owned; null without a sort property.
};

//! Base of both kinds of source: what zbIBrowserDataSource asks, answered once.
template <class Interface>
class RecordingSourceBase : public Interface, public RecordingSourceAnswers {
public:
    using RecordingSourceAnswers::RecordingSourceAnswers;

    [[nodiscard]] std::string const& Name() const { return name_; }

    zbIBrowserDataCtrl* GetDataCtrl() override;
    char const* GetName() const override;
    zbBrowserTypeId GetTypeId() override;
    bool IsDirty() const override;
    bool GetFolderScriptText(zbIBrowserViewItemFreeFolder* folder, zbString& out) override;
    zbIBrowserDataProperty* FindDataProperty(char const* name) override;
    void SetDataPropertyInteger(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                int value) override;
    void SetDataPropertyBoolean(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                bool value) override;
    void SetSortProperty(zbIBrowserDataProperty* property) override;
    bool CompareBySortProperty(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;
    bool CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty* propertyOfA,
                               zbIBrowserDataItem* b, zbIBrowserDataProperty* propertyOfB,
                               int& cmp) override;
    bool CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;
    bool CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;

protected:
    ~RecordingSourceBase() = default;
};

//! A flat source: `source.Items({"bolt_1", "nut_2"})`.
class RecordingSource final : public RecordingSourceBase<zbIBrowserDataSourceSimple> {
public:
    RecordingSource(RecordingHostCalls& calls, RecordingDataCtrl* control, std::string const& name);
    ~RecordingSource();

    //! Adds items at the end; they get ascending ids.
    RecordingSource& Items(std::initializer_list<char const*> names);
    RecordingItem& Add(std::string name);
    RecordingItem& Insert(std::size_t position, std::string name);
    //! The first listed item of that name. Null: none.
    [[nodiscard]] RecordingItem* Find(std::string_view name) const;
    //! The first listed item of that name; throws std::out_of_range if there is none.
    [[nodiscard]] RecordingItem& operator[](std::string_view name) const;
    [[nodiscard]] std::vector<RecordingItem*> const& All() const { return listed_; }
    //! Takes an item out of the source, which from now on answers as if it did not exist; the item
    //! itself stays alive until it is deleted or the source goes.
    RecordingItem& Unlist(std::string_view name);
    void Unlist(RecordingItem& item);
    //! Takes an unlisted item in again, at the end.
    void Relist(RecordingItem& item);
    //! Lists an item once more than it is: a source that breaks its contract.
    void ListTwice(std::string_view name) { listed_.push_back(&(*this)[name]); }
    //! Unlists and frees an item.
    void Delete(std::string_view name) { Delete((*this)[name]); }
    void Delete(RecordingItem& item);
    void DeleteAll();
    //! Gives the items a new order: the named ones first.
    void Reorder(std::initializer_list<char const*> names);

    bool failing = false; //!< GetDataItems adds the items all the same, and answers false.
    bool acceptsEmptySelection = false;
    std::string caption;  //!< At first the name.
    std::string typeName; //!< At first the name.
    std::vector<zbIBrowserDataSourceSimple*> filterGroups;
    std::set<zbIBrowserDataSourceSimple*> baseTypes; //!< What IsOfType is true for, beside itself.
    zbIBrowserDataSource* parentSource = nullptr;
    int connections = 0; //!< OnConnected minus OnDisconnected.

    char const* GetListCaption() const override;
    char const* GetTypeName() const override;
    void OnConnected() override;
    void OnDisconnected() override;
    void GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& out) override;
    bool IsOfType(zbIBrowserDataSourceSimple* source) override;
    void ClearDirty(bool value) override;
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override;
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override;
    bool AcceptsEmptySelection() override;
    zbIBrowserDataSource* GetParentSource() const override;

private:
    std::unordered_map<RecordingItem*, std::unique_ptr<RecordingItem>> owned_;
    std::vector<RecordingItem*> listed_;
    std::unordered_map<zbIBrowserDataItemSimple const*, int> timesListed_;
    int nextId_ = 1;
};

class RecordingTree;

//! An item of a tree.
class RecordingTreeItem final : public zbIBrowserDataItemHierarchical {
public:
    RecordingTreeItem(RecordingHostCalls& calls, RecordingTree& tree, RecordingItem& flat,
                      RecordingTreeItem* parent);

    bool hidden = false;
    bool dirty = false;
    bool tellsParent = true;   //!< False: GetParent answers null, as a tree that does not know.
    RecordingTreeItem* parent; //!< Null on top. Changed by RecordingTree::Move only.
    RecordingItem* flat;       //!< Not owned.
    std::vector<RecordingTreeItem*> children;

    zbIBrowserDataSourceHierarchical* GetDataSource() const override;
    zbIBrowserDataItemSimple* GetDataItemSimple() const override;
    bool IsHiddenFromTree() const override;
    bool IsDirty() const override;
    zbIBrowserDataItemHierarchical* GetParent() const override;

private:
    RecordingHostCalls& calls_;
    RecordingTree& tree_;
};

//! A tree: `tree.Add(assembly, "engine"); tree.Add(part, "engine/piston");`
class RecordingTree final : public RecordingSourceBase<zbIBrowserDataSourceHierarchical> {
public:
    RecordingTree(RecordingHostCalls& calls, RecordingDataCtrl* control, std::string const& name,
                  RecordingSource& ownType);
    ~RecordingTree();

    //! Makes an item of a type, with a new flat item of that type; the path names the parent.
    RecordingTreeItem& Add(RecordingSource& type, std::string_view path);
    //! Makes an item with a flat face that exists. Null: on top.
    RecordingTreeItem& Add(RecordingItem& flat, RecordingTreeItem* parent);
    //! Null: there is none at that path.
    [[nodiscard]] RecordingTreeItem* Find(std::string_view path) const;
    //! Throws std::out_of_range if there is none at that path.
    [[nodiscard]] RecordingTreeItem& operator[](std::string_view path) const;
    //! Takes an item with all below it from under its parent; they stay alive.
    void Unlist(RecordingTreeItem& item);
    //! Puts an item, listed or not, under another parent. Null: on top.
    void Move(RecordingTreeItem& item, RecordingTreeItem* newParent);
    //! Frees an item with all below it. Their flat faces stay with their sources.
    void Delete(RecordingTreeItem& item);

    bool hasDirtyItems = false;
    bool skipsBuildOnExpand = false;
    std::vector<RecordingSource*> childTypes; //!< Starts with the own type.
    int changeDepth = 0;                      //!< BeginChange minus EndChange.

    void OnDisconnected() override;
    bool SkipsBuildOnExpand() const override;
    bool HasDirtyItems() const override;
    zbIBrowserDataSourceSimple* GetOwnType() const override;
    void GetChildTypes(std::vector<zbIBrowserDataSourceSimple*>& out) override;
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) override;
    void GetChildren(zbIBrowserDataItemHierarchical* parent,
                     std::vector<zbIBrowserDataItemHierarchical*>& out,
                     zbIBrowserDataSourceSimple* type, bool recursive) override;
    void BeginChange() override;
    void EndChange() override;
    void OnViewLost() override;

private:
    [[nodiscard]] std::vector<RecordingTreeItem*>& ChildrenOf(RecordingTreeItem* parent);

    RecordingSource& ownType_;
    std::unordered_map<RecordingTreeItem*, std::unique_ptr<RecordingTreeItem>> owned_;
    std::vector<RecordingTreeItem*> top_;
};

} // namespace zbtest
