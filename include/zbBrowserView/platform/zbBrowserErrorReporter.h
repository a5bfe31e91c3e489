// SPDX-License-Identifier: MIT
//! \file
//! Base of the objects that keep the outcome of their last operation.
#pragma once

#include <zbBrowserView/platform/zbString.h>

//! Keeps an error text and a state: true as long as all went well. Whoever has called an operation
//! that answers false asks the object for the text.
//!
//! Starts in the state true with no text. Copying copies both.
class ZBBROWSERVIEW_API zbBrowserErrorReporter {
public:
    zbBrowserErrorReporter() = default;
    zbBrowserErrorReporter(zbBrowserErrorReporter const&) = default;
    zbBrowserErrorReporter& operator=(zbBrowserErrorReporter const&) = default;
    virtual ~zbBrowserErrorReporter();

    //! For a reporter that wants to know on behalf of which command it reports. Does nothing here,
    //! and nothing in the library overrides it.
    virtual void SetErrCommand(zbString const& command);

    //! The text of the last error, never null. It outlives a later success: ask `GetState` first.
    //! Valid until the next error of this object, or its end.
    [[nodiscard]] char const* GetError() const noexcept { return error_.c_str(); }
    //! False after an error, true after a success.
    [[nodiscard]] bool GetState() const noexcept { return state_; }

protected:
    //! Stores the text and makes the state false.
    void SetError(zbString const& text);
    //! Makes the state true and keeps the text.
    void SetOk() noexcept { state_ = true; }

private:
    zbString error_;
    bool state_ = true;
};
