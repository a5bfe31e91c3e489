// SPDX-License-Identifier: MIT
//! \file
//! The bodies of zbSignal.h, which includes this file at its end.
#pragma once

#include <zbBrowserView/platform/zbSignal.h>

#include <algorithm>

namespace zbbrowser::detail {

template <class P>
Emission<P>::~Emission() {
    if (signal_ == nullptr) {
        return;
    }
    if (signal_->emission_ == this) {
        signal_->emission_ = nullptr;
    }
    signal_->unlock();
}

template <class P>
bool Emission<P>::Begin() noexcept {
    using Signal = zbSignalBase<P>;
    if (signal_->connections_.empty() ||
        (signal_->flags_ & (Signal::Blocked | Signal::Emitting)) != 0) {
        return false;
    }
    signal_->flags_ |= Signal::Emitting;
    signal_->emission_ = this;
    return true;
}

template <class P>
void Emission<P>::Finish() {
    using Signal = zbSignalBase<P>;
    signal_->flags_ &= ~unsigned{Signal::Emitting};
    signal_->emission_ = nullptr;
    if ((signal_->flags_ & Signal::CleanUpPending) != 0) {
        signal_->CleanUp(cut_);
    }
}

template <class P>
void SignalEnd<P>::Add(zbSignalBase<P>* signal) {
    PolicyLock<P> const lock(*this);
    signals_.insert(signal);
}

template <class P>
void SignalEnd<P>::Remove(zbSignalBase<P>* signal) {
    PolicyLock<P> const lock(*this);
    signals_.erase(signal);
}

template <class P>
void SignalEnd<P>::CutAll() {
    // The set is read anew each time: cutting deletes slots, and the code that this runs may
    // destroy other signals, which then take themselves out.
    while (!signals_.empty()) {
        auto* const signal = *signals_.begin();
        Remove(signal);
        signal->ForgetEnd(this);
    }
}

} // namespace zbbrowser::detail

template <class P>
zbSignalBase<P>::~zbSignalBase() {
    zbbrowser::detail::CutConnections<P> cut;
    for (auto* connection : connections_) {
        connection->MarkDead();
    }
    auto* const running = emission_ != nullptr ? emission_->current_ : nullptr;
    while (!connections_.empty()) {
        auto* const connection = connections_.back();
        connections_.pop_back();
        TellEnds(*connection);
        // The slot that is being called must outlive its call: the emission deletes it.
        (connection == running ? emission_->cut_ : cut).Append(connection);
    }
    if (emission_ != nullptr) {
        emission_->signal_ = nullptr;
        this->unlock();
    }
}

template <class P>
void zbSignalBase<P>::Block(bool blocked) noexcept {
    zbbrowser::detail::PolicyLock<P> const lock(*this);
    flags_ = blocked ? flags_ | Blocked : flags_ & ~unsigned{Blocked};
}

template <class P>
bool zbSignalBase<P>::Disconnect(zbConnectionBase<P>* connection) {
    return CutIf([=](zbConnectionBase<P> const& each) { return &each == connection; });
}

template <class P>
bool zbSignalBase<P>::Disconnect(zbListener<P>* listener) {
    return listener != nullptr &&
           CutIf([=](zbConnectionBase<P> const& each) { return each.listener_ == listener; });
}

template <class P>
void zbSignalBase<P>::DisconnectAll() {
    CutIf([](zbConnectionBase<P> const&) { return true; });
}

template <class P>
zbConnectionHandle<P> zbSignalBase<P>::Adopt(zbConnectionBase<P>* connection) {
    using Base = zbConnectionBase<P>;
    auto const destroy = [](Base* unwanted) { unwanted->Delete(); };
    std::unique_ptr<Base, decltype(destroy)> owned(connection, destroy);
    connection->token_ =
        std::make_shared<typename Base::Token>(typename Base::Token{this, connection});
    zbConnectionHandle<P> handle(connection->token_);

    zbbrowser::detail::PolicyLock<P> const lock(*this);
    connections_.push_back(connection);
    try {
        if (connection->listener_ != nullptr) {
            connection->listener_->SignalConnectPrivate(this);
        }
        if (connection->far_ != nullptr) {
            connection->far_->Add(this);
        }
    } catch (...) {
        connections_.pop_back();
        TellEnds(*connection);
        throw;
    }
    static_cast<void>(owned.release());
    return handle;
}

template <class P>
template <class Condition>
bool zbSignalBase<P>::CutIf(Condition condition) {
    zbbrowser::detail::CutConnections<P> cut; // Before the lock, so that it deletes after it.
    zbbrowser::detail::PolicyLock<P> const lock(*this);
    bool found = false;
    for (auto* connection : connections_) {
        if (!connection->dead_ && condition(*connection)) {
            connection->MarkDead();
            found = true;
        }
    }
    if (found) {
        Settle(cut);
    }
    return found;
}

template <class P>
void zbSignalBase<P>::ForgetEnd(zbbrowser::detail::SignalEnd<P> const* end) {
    zbbrowser::detail::CutConnections<P> cut;
    zbbrowser::detail::PolicyLock<P> const lock(*this);
    // Those that are dead already must forget it too: they are asked for it when cleaning up.
    for (auto* connection : connections_) {
        if (connection->listener_ != end && connection->far_ != end) {
            continue;
        }
        connection->listener_ = connection->listener_ == end ? nullptr : connection->listener_;
        connection->far_ = connection->far_ == end ? nullptr : connection->far_;
        connection->MarkDead();
    }
    Settle(cut);
}

template <class P>
void zbSignalBase<P>::Settle(zbbrowser::detail::CutConnections<P>& cut) {
    flags_ |= CleanUpPending;
    if ((flags_ & Emitting) == 0) {
        CleanUp(cut);
    }
}

template <class P>
void zbSignalBase<P>::CleanUp(zbbrowser::detail::CutConnections<P>& cut) {
    for (std::size_t i = 0; i < connections_.size();) {
        auto* const connection = connections_[i];
        if (!connection->dead_) {
            ++i;
            continue;
        }
        connections_.erase(connections_.begin() + static_cast<std::ptrdiff_t>(i));
        TellEnds(*connection);
        cut.Append(connection);
    }
    zbbrowser::detail::PolicyLock<P> const lock(*this);
    flags_ &= ~unsigned{CleanUpPending};
}

template <class P>
void zbSignalBase<P>::TellEnds(zbConnectionBase<P> const& connection) {
    if (connection.listener_ != nullptr && !LeadsTo(connection.listener_)) {
        connection.listener_->SignalDisconnectPrivate(this);
    }
    if (connection.far_ != nullptr && !LeadsTo(connection.far_)) {
        connection.far_->Remove(this);
    }
}

template <class P>
bool zbSignalBase<P>::LeadsTo(zbbrowser::detail::SignalEnd<P> const* end) const noexcept {
    return std::any_of(connections_.begin(), connections_.end(), [end](auto const* each) {
        return each->listener_ == end || each->far_ == end;
    });
}

template <class P, class... A>
zbConnectionHandle<P> zbSignal<P, A...>::Connect(std::function<void(A...)> slot,
                                                 zbListener<P>* listener,
                                                 zbSignalTracker<P>* tracker) {
    if (!slot) {
        return {};
    }
    int const kind =
        tracker != nullptr ? zbConnectionBase<P>::Tracked : zbConnectionBase<P>::Functor;
    return this->Adopt(new FunctorConnection(std::move(slot), kind, listener, tracker));
}

template <class P, class... A>
template <std::derived_from<zbListener<P>> T, class Base>
requires std::derived_from<T, Base> zbConnectionHandle<P>
zbSignal<P, A...>::Connect(T* listener, void (Base::*slot)(A...)) {
    if (listener == nullptr || slot == nullptr) {
        return {};
    }
    return this->Adopt(new MemberConnection<T, Base>(listener, slot));
}

template <class P, class... A>
void zbSignal<P, A...>::operator()(A... arguments) {
    // With no lock to take, an emission without connections costs this branch alone.
    if constexpr (std::is_same_v<P, single_threaded>) {
        if (this->Connections().empty()) {
            return;
        }
    }
    zbbrowser::detail::Emission<P> emission(*this);
    if (!emission.Begin()) {
        return;
    }
    // Slots may connect, so the vector is read anew at each step.
    for (std::size_t i = 0; i < this->Connections().size(); ++i) {
        auto* const connection = this->Connections()[i];
        if (connection->IsDead()) {
            continue;
        }
        emission.Enter(connection);
        static_cast<zbConnection<P, A...>*>(connection)->Call(arguments...);
        if (emission.IsSignalGone()) {
            return;
        }
    }
    emission.Finish();
}
