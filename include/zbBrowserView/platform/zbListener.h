// SPDX-License-Identifier: MIT
//! \file
//! The far ends of connections, and the locking policy. Include zbSignal.h to use them.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

#include <cstddef>
#include <set>

//! The locking policy of the system: nothing is locked.
class ZBBROWSERVIEW_API single_threaded {
public:
    single_threaded() = default;
    single_threaded(single_threaded const&) = delete;
    single_threaded& operator=(single_threaded const&) = delete;
    virtual ~single_threaded();

    virtual void lock();
    virtual void unlock();
};

template <class P>
class zbSignalBase;
template <class P>
class zbListener;
template <class P>
class zbSignalTracker;

namespace zbbrowser::detail {

//! Holds a policy's lock for a scope. Unlocking happens in a destructor, so a throw ends the
//! process.
template <class P>
class PolicyLock {
public:
    explicit PolicyLock(P& policy)
        : policy_(policy) {
        policy_.lock();
    }
    PolicyLock(PolicyLock const&) = delete;
    PolicyLock& operator=(PolicyLock const&) = delete;
    ~PolicyLock() { policy_.unlock(); }

private:
    P& policy_;
};

//! The far end of connections: knows the signals that have a connection to it, each once, and cuts
//! those connections when it goes. A signal adds and takes away itself.
template <class P>
class SignalEnd : public P {
public:
    SignalEnd() = default;
    SignalEnd(SignalEnd const&) = delete;
    SignalEnd& operator=(SignalEnd const&) = delete;

protected:
    // Whoever derives calls `CutAll` in its own destructor, while it still is what the connections
    // point to.
    ~SignalEnd() override = default;
    void CutAll();
    void Add(zbSignalBase<P>* signal);
    void Remove(zbSignalBase<P>* signal);
    [[nodiscard]] std::size_t SignalCount() const noexcept { return signals_.size(); }

private:
    friend class zbSignalBase<P>;
    std::set<zbSignalBase<P>*> signals_; // Not owned; never null.
};

} // namespace zbbrowser::detail

//! Base of an object with slots. When it goes, each connection to it is cut; during an emission it
//! may go as well, also from within its own slot, and is not called again.
//!
//! It is told by a signal, once, that the last of that signal's connections to it has gone.
template <class P>
class zbListener : public zbbrowser::detail::SignalEnd<P> {
public:
    ~zbListener() override { this->CutAll(); }

    //! For signals only: \p signal has a connection to this object now. Again: no effect.
    void SignalConnectPrivate(zbSignalBase<P>* signal) { this->Add(signal); }
    //! For signals only: \p signal has no connection to this object any more.
    void SignalDisconnectPrivate(zbSignalBase<P>* signal) { this->Remove(signal); }
    //! The number of signals that have a connection to this object. A connection that was cut
    //! during an emission counts until that emission ends.
    using zbbrowser::detail::SignalEnd<P>::SignalCount;
};

//! An object that is not the receiver of a slot's calls but that the slot must not outlive: name it
//! in `zbSignal::Connect`, and the connection is cut when either this object or the listener goes.
template <class P>
class zbSignalTracker : public zbbrowser::detail::SignalEnd<P> {
public:
    ~zbSignalTracker() override { this->CutAll(); }

    //! The number of signals with a connection that names this object.
    using zbbrowser::detail::SignalEnd<P>::SignalCount;

private:
    friend class zbSignalBase<P>;
};
