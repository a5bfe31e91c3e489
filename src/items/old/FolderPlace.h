// SPDX-License-Identifier: MIT
//! \file
//! Where a folder stands among all folders of its view.
#pragma once

#include <cstdint>

namespace zbbrowser::detail {

//! A place in a tree that only grows at the end of each list of children. Two places are compared
//! in the order in which a walk comes to them: a place before those below it, and these in the
//! order in which they were made. That never changes, so it also holds for the place of a folder
//! that has gone, as long as nothing above it has been freed.
//!
//! Comparing takes O(log depth): each place knows one far above it as well, chosen as in the
//! skew-binary random access list (Myers, Information Processing Letters 17, 1983).
class FolderPlace {
public:
    //! \param owner null for the root
    //! \param number greater than those of all places made before
    FolderPlace(FolderPlace const* owner, std::uint64_t number);
    FolderPlace(FolderPlace const&) = delete;
    FolderPlace& operator=(FolderPlace const&) = delete;

    //! Requires: both are of one tree.
    bool IsBefore(FolderPlace const& other) const;
    //! It is the other one or below it. Requires: both are of one tree.
    bool IsWithin(FolderPlace const& other) const {
        return depth_ >= other.depth_ && RaisedTo(other.depth_) == &other;
    }
    //! 0 for the root.
    std::uint64_t Depth() const { return depth_; }
    std::uint64_t Number() const { return number_; }

private:
    FolderPlace const* RaisedTo(std::uint64_t depth) const;

    FolderPlace const* const owner_; // Not owned; that of the root is the root
    FolderPlace const* const far_;   // Not owned; at places of one depth equally far above
    std::uint64_t const depth_;
    std::uint64_t const number_;
};

} // namespace zbbrowser::detail
