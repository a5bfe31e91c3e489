// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserViewItemFreeFolder: a folder that a user made, and what stands in it.
#pragma once

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

#include <vector>

class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;

namespace zbbrowser {
struct TreeParentChildRecord;
struct TreeTopLevelRecord;
} // namespace zbbrowser

//! A free folder: a named place that the user made, which holds further free folders and shows
//! sources. Each view has one at its top, the root, whose name is empty.
//!
//! In an old view a folder shows lists (flat sources) and trees (hierarchical sources). In a new
//! view it shows what its records say, and the operations for lists and trees answer false or null.
//!
//! Most of what changes a folder goes through the view (`zbBrowserView::CreateList`,
//! `SetFreeFolderStyle` and so on), which checks its arguments and signals. The operations here act
//! on the content alone; each says what it raises.
//!
//! Ownership: the view owns its folders. `SetError`, `GetError` and `GetState` of the base tell why
//! an operation of an old folder answered false.
//! Failure: nothing here throws, and a false answer leaves everything as it was, unless told
//! otherwise. A null argument is answered like an unknown one.
class ZBBROWSERVIEW_API zbIBrowserViewItemFreeFolder : public zbIBrowserViewItem,
                                                       public zbBrowserErrorReporter {
public:
    //! Shows the rows of a flat source in this folder; an old folder builds them at once.
    virtual bool CreateList(zbIBrowserDataSourceSimple* source) = 0;

    //! Takes a tree out of this folder and of all folders below. True if any of them showed it.
    virtual bool DeleteTreeRecursive(zbIBrowserDataSourceHierarchical* tree) = 0;

    //! Takes a list out of this folder and of all folders below. True if any of them showed it.
    virtual bool DeleteListRecursive(zbIBrowserDataSourceSimple* source) = 0;

    //! Gives the lists of this folder in order of creation, those without grouping first.
    //! See GetAllLists, which adds the child types of trees and can go down.
    virtual bool GetLists(std::vector<zbIBrowserDataSourceSimple*>& out) const = 0;

    //! Gives the lists and then the child types of each tree, on request of all folders below too.
    //! A source comes once for each place. GetAllDataSources gives each once.
    virtual bool GetAllLists(std::vector<zbIBrowserDataSourceSimple*>& out,
                             bool recursive) const = 0;

    //! The list of that name, regardless of case. Null: when there is none.
    //! FindDataSourceSimple looks among the child types of the trees as well.
    virtual zbIBrowserDataSourceSimple* FindList(char const* name) const = 0;

    //! `source` itself if it is a list of this folder, otherwise null.
    virtual zbIBrowserDataSourceSimple*
    FindList(zbIBrowserDataSourceSimple const* source) const = 0;

    //! The list or child type of a tree of that name, lists first. Null: when there is none.
    virtual zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) const = 0;

    //! The tree of that name. Null: when there is none.
    virtual zbIBrowserDataSourceHierarchical* FindTree(char const* name) const = 0;

    //! Shows a tree in this folder.
    virtual bool CreateTree(zbIBrowserDataSourceHierarchical* tree) = 0;

    //! Gives the trees of this folder in order of creation.
    virtual bool GetTrees(std::vector<zbIBrowserDataSourceHierarchical*>& out) const = 0;

    //! Gives the parent-child records of a new folder. An old folder answers false.
    virtual bool
    GetTreeParentChildRecords(std::vector<zbbrowser::TreeParentChildRecord>& out) const = 0;

    //! Gives the top-level records of a new folder. An old folder answers false.
    virtual bool GetTreeTopLevelRecords(std::vector<zbbrowser::TreeTopLevelRecord>& out) const = 0;

    //! The source of that name in the records of a new folder. An old folder answers null.
    virtual zbIBrowserDataSource* FindDataSource(zbString const& name) const = 0;

    //! The folder's name; empty for the root, never null. Valid as long as the folder.
    virtual char const* GetName() const = 0;

    //! Puts the rows of a list below a group of their own, or back into the folder. The type of
    //! that source in the trees follows.
    virtual bool SetListGrouped(zbIBrowserDataSourceSimple* source, bool grouped) = 0;

    //! The same for one type of one tree.
    virtual bool SetChildTypeGrouped(zbIBrowserDataSourceHierarchical* tree,
                                     zbIBrowserDataSourceSimple* type, bool grouped) = 0;

    //! The same for all types of one tree.
    virtual bool SetTreeGrouped(zbIBrowserDataSourceHierarchical* tree, bool grouped) = 0;

    //! Whether lists and trees that are added show their rows in groups.
    virtual bool GetGroupLeafs() const = 0;

    //! Whether groups without rows are shown in this folder's trees.
    virtual bool GetFreeFolderStyle() const = 0;

    //! Whether containers without children are shown.
    virtual bool GetShowEmptyContainers() const = 0;

    //! Whether child folders keep the order of their creation, which is the default, instead of
    //! being sorted.
    virtual bool GetKeepChildrenInOrder() const = 0;

    //! Gives the types that a tree of this folder can show.
    virtual bool GetChildTypes(zbIBrowserDataSourceHierarchical* tree,
                               std::vector<zbIBrowserDataSourceSimple*>& out) const = 0;

    //! Whether a type of a tree is shown.
    //! Failure: false for a null argument and in a new folder. An unknown tree is answered true,
    //! with `shown` set to false.
    virtual bool IsChildTypeShown(zbIBrowserDataSourceHierarchical* tree,
                                  zbIBrowserDataSourceSimple* type, bool& shown) const = 0;

    //! Whether a type of a tree stands in groups.
    virtual bool IsChildTypeGrouped(zbIBrowserDataSourceHierarchical* tree,
                                    zbIBrowserDataSourceSimple* type, bool& grouped) const = 0;

    //! Gives the lists and child types of this folder, on request of all folders below too, each
    //! once, by name regardless of case.
    virtual bool GetAllDataSources(std::vector<zbIBrowserDataSource*>& out,
                                   bool recursive) const = 0;

    //! Gives the child folders, hidden ones included.
    //! In order of creation, unless `sorted` is true and GetKeepChildrenInOrder false: then by name
    //! regardless of case, digits being bytes like others, and backwards when `ascending` is false.
    //! The folder keeps that order until a child folder comes or goes, hence not const.
    virtual bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out, bool sorted,
                                     bool ascending) = 0;

    //! The child folder of that name, regardless of case. Null: when there is none.
    virtual zbIBrowserViewItemFreeFolder* FindChildFreeFolder(zbString const& name) const = 0;

    //! Lets the folder's icon tell whether there are data in it, and below it if `recursive`.
    //! Signals: `ViewItemChanged` with this folder.
    virtual void SetIconShowsData(bool show, bool recursive) = 0;

    //! Lets the folder's caption tell how many rows there are in it, and below it if `recursive`.
    //! Signals: `ViewItemChanged` with this folder.
    virtual void SetCaptionShowsCount(bool show, bool recursive) = 0;

    //! True for the folder at the top of the view.
    virtual bool IsVirtualRoot() const = 0;

    //! True if no source shown in this folder has a row that the filter lets through, below it too
    //! if `recursive`. A folder of a new view answers false.
    virtual bool IsDataEmpty(bool recursive) const = 0;

    //! Shows the folder's text bold. A folder of a new view ignores it.
    //! Signals: `ViewItemChanged` with this folder if that changed anything.
    virtual void SetTextBold(bool bold) = 0;

    virtual bool GetTextBold() const = 0;

    //! Shows the folder's text italic. A folder of a new view ignores it.
    //! Signals: `ViewItemChanged` with this folder if that changed anything.
    virtual void SetTextItalic(bool italic) = 0;

    virtual bool GetTextItalic() const = 0;

    //! Whether the folder is to be shown when nothing is in it; a new child folder takes this over.
    //! Signals: `ViewItemChanged` for each folder that is set, a folder after those below it.
    virtual void SetShowWhenEmpty(bool show, bool recursive) = 0;

    virtual bool GetShowWhenEmpty() const = 0;

    //! Stores a pointer of the host's own choice; null is ignored. A folder of a new view stores
    //! nothing. The library never follows or frees it.
    virtual void SetAttachedObject(void* object) = 0;

    virtual void* GetAttachedObject() const = 0;

    //! Writes the flag that IsExpanded reads, and nothing else. An old folder ignores it.
    virtual void SetExpandedFlag(bool expanded) = 0;

    //! The view in which the folder lives; the same as GetView, as the class of its generation
    //! where that is known. Never null.
    virtual zbIBrowserView* GetViewImpl() const = 0;

    //! Writes the pointer that GetParent reads, and nothing else; the folder's old parent keeps it
    //! among its children. The root of an old view ignores it.
    virtual void SetParentFolder(zbIBrowserViewItemFreeFolder* parent) = 0;
};
