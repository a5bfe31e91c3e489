// SPDX-License-Identifier: MIT
//! \file
//! Signals: who owns one raises it, and the slots connected to it are called at once, in the order
//! in which they were connected.
//!
//! Everything happens on one thread, that of the host's user interface. Nothing here can be copied
//! or moved, except handles. A policy \p P other than single_threaded must let the thread that
//! holds the lock take it again, and its `unlock` must not throw: that ends the process.
#pragma once

#include <zbBrowserView/platform/zbConnection.h>
#include <zbBrowserView/platform/zbListener.h>

#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace zbbrowser::detail {

//! One running emission. The signal knows it, so that its destructor can tell it; the signal must
//! not be touched afterwards.
template <class P>
class Emission {
public:
    explicit Emission(zbSignalBase<P>& signal)
        : signal_(&signal) {
        signal.lock();
    }
    Emission(Emission const&) = delete;
    Emission& operator=(Emission const&) = delete;
    //! Unlocks. Leaves "emission in progress" alone: after a slot has thrown it stays set.
    ~Emission();

    //! False: nothing is to be called.
    bool Begin() noexcept;
    //! Names the connection whose slot is called next.
    void Enter(zbConnectionBase<P>* connection) noexcept { current_ = connection; }
    [[nodiscard]] bool IsSignalGone() const noexcept { return signal_ == nullptr; }
    //! After the last slot.
    void Finish();

private:
    friend class zbSignalBase<P>;
    CutConnections<P> cut_;                  // First, so that it goes last.
    zbSignalBase<P>* signal_;                // Not owned; null once the signal has gone.
    zbConnectionBase<P>* current_ = nullptr; // Not owned.
};

} // namespace zbbrowser::detail

//! What a signal is and does whatever the arguments of its slots.
//!
//! Cutting a connection outside an emission removes it, tells its listener (and its tracker) unless
//! another connection of this signal leads there too, and deletes it. During an emission it only
//! gets its dead mark: it is not called any more, and the rest happens when the emission ends.
template <class P>
class zbSignalBase : public P {
public:
    zbSignalBase() = default;
    zbSignalBase(zbSignalBase const&) = delete;
    zbSignalBase& operator=(zbSignalBase const&) = delete;
    //! Tells each listener and each tracker once and deletes all connections. Allowed during an
    //! emission of this signal, also from a slot: the emission ends there.
    ~zbSignalBase() override;

    //! While a signal is blocked, raising it does nothing. A running emission goes on.
    void Block(bool blocked) noexcept;
    [[nodiscard]] bool IsBlocked() const noexcept { return (flags_ & Blocked) != 0; }
    //! The number of connections. Those that were cut during an emission count until it ends.
    [[nodiscard]] std::size_t Count() const noexcept { return connections_.size(); }
    //! True during an emission, and for good once a slot has thrown.
    [[nodiscard]] bool IsEmitting() const noexcept { return (flags_ & Emitting) != 0; }

    //! Cuts one connection. False if it is null, of another signal or already cut. Cost: linear in
    //! the number of connections, as with all that follow.
    bool Disconnect(zbConnectionBase<P>* connection);
    //! Cuts all connections to \p listener. False if there is none. Null: false.
    bool Disconnect(zbListener<P>* listener);
    void DisconnectAll();

protected:
    //! Takes \p connection over, as the last one.
    zbConnectionHandle<P> Adopt(zbConnectionBase<P>* connection);

    [[nodiscard]] std::vector<zbConnectionBase<P>*> const& Connections() const noexcept {
        return connections_;
    }

private:
    friend class zbbrowser::detail::Emission<P>;
    friend class zbbrowser::detail::SignalEnd<P>;

    enum Flag : unsigned { Blocked = 1, Emitting = 2, CleanUpPending = 4 };

    template <class Condition>
    bool CutIf(Condition condition);
    //! Cuts the connections to an end that is going, and forgets the end itself.
    void ForgetEnd(zbbrowser::detail::SignalEnd<P> const* end);
    //! Ends a cut: cleans up now, unless an emission will.
    void Settle(zbbrowser::detail::CutConnections<P>& cut);
    void CleanUp(zbbrowser::detail::CutConnections<P>& cut);
    void TellEnds(zbConnectionBase<P> const& connection);
    [[nodiscard]] bool LeadsTo(zbbrowser::detail::SignalEnd<P> const* end) const noexcept;

    unsigned flags_ = 0;
    std::vector<zbConnectionBase<P>*> connections_;      // Owned; never null.
    zbbrowser::detail::Emission<P>* emission_ = nullptr; // Not owned; null unless one is running.
};

//! A signal whose slots take \p A.
//!
//! A signal doesn't nest: raising it from within one of its own slots does nothing, and is not made
//! up for later.
template <class P, class... A>
class zbSignal : public zbSignalBase<P> {
public:
    //! Connects \p slot, which will be called after those that are connected already; from within a
    //! slot: in the running emission too. The connection stands until it is cut or until \p
    //! listener, \p tracker or this signal goes.
    //!
    //! The handle names the connection and may be thrown away only on purpose; give it to a
    //! zbScopedConnection to have it cut. Null: an empty function is not connected and the handle
    //! names nothing; \p listener and \p tracker may be null.
    //! Failure: std::bad_alloc, and nothing has changed.
    [[nodiscard]] zbConnectionHandle<P> Connect(std::function<void(A...)> slot,
                                                zbListener<P>* listener = nullptr,
                                                zbSignalTracker<P>* tracker = nullptr);
    //! Connects a member of \p listener. Null: not connected, and the handle names nothing.
    template <std::derived_from<zbListener<P>> T, class Base>
    requires std::derived_from<T, Base>
    [[nodiscard]] zbConnectionHandle<P> Connect(T* listener, void (Base::*slot)(A...));

    //! Raises the signal: calls each slot in turn. Does nothing, and doesn't touch the state, when
    //! there is no connection, when it is blocked, and when it is being raised already.
    //!
    //! A slot may connect, cut, block, and destroy listeners or this very signal.
    //! Failure: what a slot throws goes on to the caller; the slots after it are not called, and
    //! the signal stays silent for good, since the emission never ended.
    void operator()(A... arguments);

private:
    class FunctorConnection final : public zbConnection<P, A...> {
    public:
        FunctorConnection(std::function<void(A...)> slot, int kind, zbListener<P>* listener,
                          zbSignalTracker<P>* tracker)
            : zbConnection<P, A...>(kind, listener, tracker)
            , slot_(std::move(slot)) {}
        void Call(A... arguments) override { slot_(std::forward<A>(arguments)...); }

    private:
        std::function<void(A...)> slot_;
    };

    template <class T, class Base>
    class MemberConnection final : public zbConnection<P, A...> {
    public:
        MemberConnection(T* listener, void (Base::*slot)(A...))
            : zbConnection<P, A...>(zbConnectionBase<P>::ListenerMember, listener, nullptr)
            , object_(listener)
            , slot_(slot) {}
        void Call(A... arguments) override { (object_->*slot_)(std::forward<A>(arguments)...); }

    private:
        T* object_; // Not owned; valid as long as the connection isn't dead.
        void (Base::*slot_)(A...);
    };
};

#include <zbBrowserView/platform/detail/zbSignalImpl.h>

extern template class ZBBROWSERVIEW_API zbSignalBase<single_threaded>;
extern template class ZBBROWSERVIEW_API zbListener<single_threaded>;
extern template class ZBBROWSERVIEW_API zbSignalTracker<single_threaded>;
