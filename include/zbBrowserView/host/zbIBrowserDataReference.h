// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataReference: a relation between two types of data items.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>

class zbIBrowserDataCtrl;

//! A relation between two types of data items, such as "assembly has parts". A new view builds its
//! trees along references; the data control answers which items are linked. Old views use none.
//!
//! Ownership: the host's. Stays valid while it is connected to a view or used in a folder of one.
class ZBBROWSERVIEW_API zbIBrowserDataReference {
public:
    //! The data control to which the reference belongs, which answers for its links.
    virtual zbIBrowserDataCtrl* GetDataCtrl() = 0;

    //! Type at the parent end. A source with this zbIBrowserDataSource::GetTypeId fits there.
    virtual zbBrowserTypeId GetParentTypeId() = 0;

    //! Type at the child end; may equal the parent's, in a relation of a type with itself.
    virtual zbBrowserTypeId GetChildTypeId() = 0;

    //! Whether links came or went since zbIBrowserDataCtrl::GetChangedLinks was last asked.
    virtual bool IsDirty() const = 0;

protected:
    ~zbIBrowserDataReference() = default;
};
