// SPDX-License-Identifier: MIT
//! \file
//! A list of views that may change while it is walked.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zbbrowser::detail {

//! Views of one generation in order of creation. Not their owner.
//!
//! A view that leaves the list while a walk is under way leaves a null behind, which the outermost
//! walk sweeps up at its end. So walks need no copy of the list, never reach a view that has gone,
//! and do not mistake a new view for a gone one at the same address.
template <class View>
class ViewList {
public:
    void Append(View* view) { views_.push_back(view); }

    //! Null: `view` is not in the list. The pointer is compared, never followed.
    template <class Any>
    View* Find(Any const* view) const {
        if (view == nullptr)
            return nullptr;
        return FindIf([view](View const& listed) { return &listed == view; });
    }

    //! The first view for which `predicate` answers true, otherwise null.
    template <class Predicate>
    View* FindIf(Predicate&& predicate) const {
        for (View* view : views_)
            if (view != nullptr && predicate(*view))
                return view;
        return nullptr;
    }

    //! Requires: `view` is in the list.
    void Remove(View* view) {
        auto const found = std::find(views_.begin(), views_.end(), view);
        if (walks_ > 0)
            *found = nullptr;
        else
            views_.erase(found);
    }

    //! Appends the views that have this data control, all of them for null, to `out`.
    template <class Any>
    void AppendTo(std::vector<Any*>& out, void const* dataCtrl) const {
        for (View* view : views_)
            if (view != nullptr && (dataCtrl == nullptr || view->GetDataCtrl() == dataCtrl))
                out.push_back(view);
    }

    //! Calls `visit` for each view that is in the list now and still is when its turn comes.
    //! `visit` may change the list, walk it, and throw.
    template <class Visit>
    void Walk(Visit&& visit) {
        Sweeper const sweeper(*this);
        std::size_t const end = views_.size();
        for (std::size_t i = 0; i < end; ++i)
            if (View* const view = views_[i])
                visit(*view);
    }

private:
    struct Sweeper {
        explicit Sweeper(ViewList& list)
            : list_(list) {
            ++list_.walks_;
        }
        Sweeper(Sweeper const&) = delete;
        Sweeper& operator=(Sweeper const&) = delete;
        ~Sweeper() {
            if (--list_.walks_ == 0)
                std::erase(list_.views_, nullptr);
        }

        ViewList& list_;
    };

    std::vector<View*> views_; // Null where a view went during a walk
    std::size_t walks_ = 0;
};

} // namespace zbbrowser::detail
