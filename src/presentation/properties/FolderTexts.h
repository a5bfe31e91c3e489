// SPDX-License-Identifier: MIT
//! \file
//! What the default properties show for folders.
#pragma once

#include "view/FolderPath.h"

#include <zbBrowserView/platform/zbString.h>

#include <cstdint>

namespace zbbrowser::detail {

//! Which of the two default properties that show a text for folders too.
enum class DefaultText { Name, Icon };

//! Appends " (3)". Counts from 2^32 on start again at 0.
void AppendCount(zbString& text, std::uint64_t count);

//! Name: "name", or "name (3)" if the folder is to show its count.
//! Icon: its path, with "_DATA" or "_DATA_RECURSIVE" if it is to show that there is data and there
//! is some.
template <class Folder>
zbString TextOfFolder(Folder const& folder, DefaultText kind) {
    auto const count = [&](bool recursive) -> std::uint64_t {
        return recursive ? folder.CountAllViewItems() : folder.GetChildrenCount();
    };
    zbString text;
    if (kind == DefaultText::Name) {
        text = folder.GetName();
        if (folder.CaptionShowsCount())
            AppendCount(text, count(folder.IsCaptionRecursive()));
        return text;
    }
    FolderPath(&folder, text);
    if (folder.IconShowsData() && count(folder.IsIconRecursive()) != 0)
        text += folder.IsIconRecursive() ? "_DATA_RECURSIVE" : "_DATA";
    return text;
}

} // namespace zbbrowser::detail
