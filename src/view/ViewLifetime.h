// SPDX-License-Identifier: MIT
//! \file
//! How a view survives hosts that delete what is being worked on.
#pragma once

#include <cstddef>
#include <memory>

namespace zbbrowser::detail {

//! What a view can hold back. It brings along the link of the list that it is put into, since what
//! goes must not need memory for that.
class Retirable {
public:
    Retirable() = default;
    Retirable(Retirable const&) = delete;
    Retirable& operator=(Retirable const&) = delete;
    virtual ~Retirable() = default;

private:
    friend class ViewLifetime;

    Retirable* retiredNext_ = nullptr; // Owned by the list, as this object is
};

//! Counts how deep the view's public operations are nested and holds back the destruction of
//! whatever goes meanwhile.
//!
//! A slot or a host operation may delete an item, a folder, a folder's content or the whole view
//! while the library is in the middle of a loop over it. Such an object is detached and marked at
//! once, so that nothing finds it any more, but its memory is given back only when the outermost
//! operation returns. A pointer that a running loop holds therefore always points at an object,
//! and the loop needs to ask it just one thing: are you still there?
class ViewLifetime {
public:
    ViewLifetime() = default;
    ViewLifetime(ViewLifetime const&) = delete;
    ViewLifetime& operator=(ViewLifetime const&) = delete;
    ~ViewLifetime();

    //! An operation of the view is running.
    bool IsBusy() const { return depth_ > 0; }

    //! False as soon as the view has been given up; from then on it raises no signals.
    bool IsAlive() const { return whenIdle_ == nullptr; }

    //! A slot, or a source that lists its items, has been called since the outermost operation
    //! began. It may have freed data items without telling, so a data item that was listed before
    //! must not be followed unless its source says that it is still there.
    bool HasHostRun() const { return hostRuns_ > 0; }
    //! How often. An operation that compares this with what it was when it began does not mind what
    //! ran before.
    std::size_t HostRuns() const { return hostRuns_; }
    void NoteHostRun() { ++hostRuns_; }

    //! Objects that are held back now. While an operation runs, this grows with all that goes.
    std::size_t RetiredCount() const { return retiredCount_; }

    //! Gives the view up: `destroy(view)` runs when the outermost operation returns.
    //! Requires: IsBusy().
    void GiveUp(void* view, void (*destroy)(void*));

    //! Frees `object` when the outermost operation returns, at once if none is running.
    void Retire(std::unique_ptr<Retirable> object) noexcept;

private:
    friend class CallScope;

    // Inline, since every cell that is painted takes it several times. The count is written on each
    // way by itself: decremented in a condition, g++ 12 at -O1 loses it while an exception passes.
    void Leave() {
        if (depth_ > 1) {
            --depth_;
            return;
        }
        if (firstRetired_ != nullptr)
            FreeRetired();
        depth_ = 0;
        hostRuns_ = 0;
        if (whenIdle_ != nullptr)
            whenIdle_(view_); // Frees this object too
    }
    void FreeRetired();

    std::size_t depth_ = 0;
    std::size_t hostRuns_ = 0;
    std::size_t retiredCount_ = 0;
    Retirable* firstRetired_ = nullptr; // Owned, with those behind it
    Retirable* lastRetired_ = nullptr;
    void* view_ = nullptr; // Not owned; set once the view has been given up
    void (*whenIdle_)(void*) = nullptr;
};

//! One running operation of a view. Every public operation that can call the host opens one.
class [[nodiscard]] CallScope {
public:
    explicit CallScope(ViewLifetime& lifetime)
        : lifetime_(lifetime) {
        ++lifetime_.depth_;
    }
    CallScope(CallScope const&) = delete;
    CallScope& operator=(CallScope const&) = delete;
    ~CallScope() { lifetime_.Leave(); }

private:
    ViewLifetime& lifetime_;
};

} // namespace zbbrowser::detail
