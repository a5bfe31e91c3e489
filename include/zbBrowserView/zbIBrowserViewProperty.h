// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserViewProperty: a named value that rows show.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/platform/zbVariant.h>
#include <zbBrowserView/zbBrowserEnums.h>

#include <map>

class zbIBrowserDataItem;
class zbIBrowserDataProperty;
class zbIBrowserDataSource;
class zbIBrowserDataSourceSimple;
class zbIBrowserView;
class zbIBrowserViewItem;

//! A name bound, for each data source, to one data property of that source. Asked for an item, a
//! view property finds the item's data and source and reads the data property that is connected for
//! that source. A get script, if there is one, gives the value instead, whatever is connected; a
//! set script takes the value.
//!
//! The old generation reads typed values; the host's readers get the data item and, for a row of a
//! tree, the flat face of its parent. The new generation reads and writes one zbVariant, and before
//! it does tells the view's data control which item is meant (`SetCurrentDataItem`). Each answers
//! the operations of the other with false, null or nothing; these answers are marked "Old:" and
//! "New:".
//!
//! Scripts run through `zbBrowserViewCtrl::TEMP_GetStringFromScript`. Whether one fails is not
//! noticed: a read then gives what it makes of the empty text.
//!
//! Four properties stand in every view. "default_bold_text_prop" and "default_italic_text_prop" are
//! like any other. "default_name_prop" and "default_icon_name_prop" differ in one read (Old:
//! GetStringValue and with it GetDisplayValue, New: GetValue):
//! - A get script gets an empty argument, and runs for each item and for null.
//! - A free folder has a text: its name, behind it the number of its rows as in "tools (3)" if
//!   SetCaptionShowsCount says so; as icon its path, behind it "_DATA" if it has rows and
//!   SetIconShowsData says so. Rows that are hidden count; with `recursive` those below count too,
//!   and the icon gets "_DATA_RECURSIVE". In a new view every folder counts 0 rows.
//! - A row whose source has no connection has no name; its icon is the name of its source.
//! - Old: a group answers false, since no view makes groups yet. Whatever answers false, null
//!   apart, leaves `out` empty.
//! - New: the icon of a group is the name of its source; its name throws the zbString "Null pointer
//!   hit" unless the group stands in its folder, and no folder holds groups yet. A dependent folder
//!   answers true and leaves `out` as it is.
//!
//! Requires: an item that is handed in still exists. It does while its deletion is told, and has
//! its values then.
//!
//! A script or a host object that is asked here may change or delete the property, its connections
//! or the view. What it returns is still answered; but once the view has gone before a data
//! property was reached, none is called, and the answer is false.
//!
//! Ownership: the view's, also after `DeleteViewProperty`: the object lives as long as its view, or
//! until `DeletePropertyHolder` of a new one.
//! Cost: a read is one look-up in the connections and one call of the host. To count below a folder
//! is O(folders below).
//!
//! `GetDataProperty` and `GetConnections` have two forms. A flat source is also a source, so on a
//! new property cast a `zbIBrowserDataSourceSimple*` to `zbIBrowserDataSource*` first, or the form
//! of the old generation answers.
class ZBBROWSERVIEW_API zbIBrowserViewProperty {
public:
    //! The name given at creation. Never null. Compared exactly, case included.
    virtual char const* GetName() const = 0;

    //! Reserved: "".
    virtual char const* GetReservedTextA() const = 0;
    virtual char const* GetReservedTextB() const = 0;

    //! True.
    virtual bool IsAvailable() const = 0;

    //! A mark for the host, false at first; the library never reads it.
    virtual bool GetFlag() const = 0;
    virtual void SetFlag(bool flag) = 0;

    //! Stores both scripts in place of those before; an empty or null one means no script. True.
    //! `linkedProperty` (New): the name of another property of the view, which gives the text that
    //! SetBooleanValue hands to the set script. A name that is null or not found keeps the link
    //! that was there.
    virtual bool SetScripts(char const* setScript, char const* getScript,
                            char const* linkedProperty = nullptr) = 0;

    //! Runs "{set script} {path of the folder} {text}". Nothing without a set script, for null, and
    //! for anything but a free folder. New: does nothing.
    virtual void SetTextByScript(zbIBrowserViewItem* item, zbString const& text) = 0;

    //! The view to which the property belongs.
    virtual zbIBrowserView* GetView() const = 0;

    //! New: the value of a row. With a get script the text that it gives, after an empty argument;
    //! otherwise what the data property connected for the row's source gives. The data control of
    //! the view is positioned on the row in both cases.
    //! False and `out` untouched: for null, an item of another view, an item that is no row (but
    //! see the default properties above), and without a connection. Old: false.
    virtual bool GetValue(zbIBrowserViewItem* item, zbVariant& out) = 0;

    //! New: writes the value of a row. True and nothing written for an item that is no row.
    //! False: for null, when the kind of the value does not go with GetDataType (a kind that goes
    //! with no type counts as type 0), for an item of another view, without a connection, and
    //! always with a set script, which works on free folders only. Old: false.
    virtual bool SetValue(zbIBrowserViewItem* item, zbVariant value) = 0;

    //! 0 until it is set.
    virtual ZBBROWSER_DATA_TYPE GetDataType() const = 0;

    //! Stores any number, also one that is no valid type; true. `UpdateViewPropertyType` of the
    //! view looks at the range.
    virtual bool SetDataType(ZBBROWSER_DATA_TYPE type) = 0;

    //! True.
    virtual bool IsReadable() const = 0;
    virtual bool IsWritable() const = 0;

    //! Old: replaces `out` by the connections; true. New: false, `out` untouched.
    virtual bool
    GetConnections(std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*>& out) = 0;

    //! New: replaces `out` by the connections; true. Old: false, `out` untouched.
    virtual bool GetConnections(std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>& out) = 0;

    //! Old: the data property connected for the source. Null: for null and without a connection.
    //! New: null.
    virtual zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSourceSimple* source) = 0;

    //! New: the data property connected for the source. Null: for null and without a connection.
    //! Old: null.
    virtual zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSource* source) = 0;

    //! \name Typed values
    //! Old: with a get script the text that it gives, converted; its argument is the path of a free
    //! folder of the view, and empty for any other item. Otherwise what the data property connected
    //! for the row's source gives.
    //! False: without data or without a connection; `out` is then as it was. False also for null,
    //! but GetBooleanValue, GetTextPointer and GetDisplayValue run a get script for null, too.
    //! New: false, and null for GetTextPointer.
    //! @{

    //! Converts a script's text as `atoi` does, both.
    virtual bool GetIntegerValue(zbIBrowserViewItem* item, int& out) = 0;
    virtual bool GetUnsignedValue(zbIBrowserViewItem* item, unsigned& out) = 0;

    //! A script's text counts as true if it is exactly "true".
    virtual bool GetBooleanValue(zbIBrowserViewItem* item, bool& out) = 0;

    //! The text of a script stays valid until this operation is called again or the property goes;
    //! any other as long as the data property says. Null: also if the script deletes the view.
    virtual char const* GetTextPointer(zbIBrowserViewItem* item) = 0;

    //! The next one; the data item is not looked at.
    virtual bool GetStringValue(zbIBrowserViewItem* item, zbIBrowserDataItem* ignored,
                                zbString& out) = 0;
    virtual bool GetStringValue(zbIBrowserViewItem* item, zbString& out) = 0;

    //! Converts a script's text as `atof` does.
    virtual bool GetDoubleValue(zbIBrowserViewItem* item, double& out) = 0;
    //! @}

    //! Old: writes a value. With a set script "{set script} {path} true" or "... false" is run for
    //! a free folder and nothing for any other item, and the answer is true. Otherwise the source
    //! of the item's data is told `SetDataPropertyInteger`, with a null data property if none is
    //! connected, and the answer is true. False: for null and without data or source.
    //! With a set script every number but 0 is "true". New: false.
    virtual bool SetIntegerValue(zbIBrowserViewItem* item, int value) = 0;

    //! Old: as SetIntegerValue, with `SetDataPropertyBoolean`.
    //! New: for a row, with data type 1: positions the data control of the row's source, reads the
    //! linked property and runs "{set script} {its text} true" or "... false" and a line feed;
    //! true. False: without a script, although the linked property is read then too, and for
    //! anything else, such as a source without data control or a link without a connection for it.
    virtual bool SetBooleanValue(zbIBrowserViewItem* item, bool value) = 0;

    //! Old: the value as it is to be shown to people. New: false.
    virtual bool GetDisplayValue(zbIBrowserViewItem* item, zbString& out) = 0;

protected:
    ~zbIBrowserViewProperty() = default;
};
