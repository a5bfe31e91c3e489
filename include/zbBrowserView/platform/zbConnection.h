// SPDX-License-Identifier: MIT
//! \file
//! The connections of signals and the handles to them. Include zbSignal.h to use them.
#pragma once

#include <zbBrowserView/platform/zbListener.h>

#include <memory>
#include <utility>

template <class P>
class zbConnectionHandle;

namespace zbbrowser::detail {
template <class P>
class CutConnections;
} // namespace zbbrowser::detail

//! One slot of one signal, without the slot's arguments. Made, owned and deleted by the signal; a
//! pointer is valid until the connection is cut, and during an emission until that ends.
template <class P>
class zbConnectionBase {
public:
    //! What a connection's slot is.
    enum KindOfSlot : int { Functor = 1, ListenerMember = 2, Tracked = 6 };

    zbConnectionBase(zbConnectionBase const&) = delete;
    zbConnectionBase& operator=(zbConnectionBase const&) = delete;

    //! Null: the slot belongs to no listener, or its listener has gone.
    [[nodiscard]] zbListener<P>* Listener() const noexcept { return listener_; }
    //! A value of KindOfSlot; only `Tracked` changes what a signal does.
    [[nodiscard]] int Kind() const noexcept { return kind_; }
    //! Null unless the kind is `Tracked`, or when the tracker has gone.
    [[nodiscard]] zbSignalTracker<P>* Far() const noexcept { return far_; }
    //! True once it has been cut during an emission: it is not called any more.
    [[nodiscard]] bool IsDead() const noexcept { return dead_; }

protected:
    zbConnectionBase(int kind, zbListener<P>* listener, zbSignalTracker<P>* far) noexcept
        : kind_(kind)
        , listener_(listener)
        , far_(far) {}
    virtual ~zbConnectionBase() = default;
    //! Deletes the connection.
    virtual void Delete() { delete this; }

private:
    friend class zbSignalBase<P>;
    friend class zbbrowser::detail::CutConnections<P>;
    template <class Q>
    friend class zbConnectionHandle;

    //! Shared with the handles, which look here whether the connection still stands.
    struct Token {
        zbSignalBase<P>* signal;         // Not owned; null once the connection is cut.
        zbConnectionBase<P>* connection; // Not owned; null once the connection is cut.
    };

    void MarkDead() noexcept {
        dead_ = true;
        *token_ = {};
    }

    bool dead_ = false;
    int kind_;
    zbListener<P>* listener_;                // Not owned.
    zbSignalTracker<P>* far_;                // Not owned.
    zbConnectionBase<P>* nextCut_ = nullptr; // The chain of those that wait for deletion.
    std::shared_ptr<Token> token_;
};

namespace zbbrowser::detail {

//! Connections that left their signal and wait to be deleted: a chain, so that cutting allocates
//! nothing. Deleting one may run any code of the caller (its slot's destructor), so it comes after
//! everything else, when neither the signal nor a lock is needed any more.
template <class P>
class CutConnections {
public:
    CutConnections() = default;
    CutConnections(CutConnections const&) = delete;
    CutConnections& operator=(CutConnections const&) = delete;
    ~CutConnections() {
        while (first_ != nullptr) {
            auto* const connection = std::exchange(first_, first_->nextCut_);
            connection->Delete();
        }
    }

    void Append(zbConnectionBase<P>* connection) noexcept {
        (last_ != nullptr ? last_->nextCut_ : first_) = connection;
        last_ = connection;
    }

private:
    zbConnectionBase<P>* first_ = nullptr;
    zbConnectionBase<P>* last_ = nullptr;
};

} // namespace zbbrowser::detail

//! A connection whose slot takes \p A.
template <class P, class... A>
class zbConnection : public zbConnectionBase<P> {
public:
    virtual void Call(A... arguments) = 0;

protected:
    using zbConnectionBase<P>::zbConnectionBase;
};

//! Names one connection, and is harmless whatever becomes of the connection or the signal. Letting
//! it go cuts nothing; for that there is zbScopedConnection. Copies name the same connection.
template <class P>
class [[nodiscard]] zbConnectionHandle {
public:
    //! Names nothing.
    zbConnectionHandle() noexcept = default;

    //! False once the connection has been cut, from whichever side.
    [[nodiscard]] bool IsConnected() const noexcept {
        return token_ != nullptr && token_->signal != nullptr;
    }
    //! Cuts the connection, see `zbSignal::Disconnect`. False if there is none any more.
    bool Disconnect() { return IsConnected() && token_->signal->Disconnect(token_->connection); }
    //! Null once the connection has been cut.
    [[nodiscard]] zbConnectionBase<P>* Connection() const noexcept {
        return token_ != nullptr ? token_->connection : nullptr;
    }

private:
    friend class zbSignalBase<P>;
    explicit zbConnectionHandle(std::shared_ptr<typename zbConnectionBase<P>::Token> token) noexcept
        : token_(std::move(token)) {}

    std::shared_ptr<typename zbConnectionBase<P>::Token> token_;
};

//! Cuts its connection when it goes or is given another one. May outlive the signal.
template <class P = single_threaded>
class zbScopedConnection {
public:
    //! Holds nothing.
    zbScopedConnection() noexcept = default;
    zbScopedConnection(zbConnectionHandle<P> handle) noexcept
        : handle_(std::move(handle)) {}
    zbScopedConnection(zbScopedConnection&& other) noexcept
        : handle_(other.Release()) {}
    zbScopedConnection& operator=(zbScopedConnection&& other) noexcept {
        // The old connection goes last: deleting its slot may run code of the caller.
        zbScopedConnection old(std::exchange(handle_, other.Release()));
        return *this;
    }
    ~zbScopedConnection() { handle_.Disconnect(); }

    [[nodiscard]] bool IsConnected() const noexcept { return handle_.IsConnected(); }
    //! Cuts the connection now. False if there is none any more.
    bool Disconnect() { return handle_.Disconnect(); }
    //! Gives the connection back uncut.
    zbConnectionHandle<P> Release() noexcept { return std::exchange(handle_, {}); }

private:
    zbConnectionHandle<P> handle_;
};
