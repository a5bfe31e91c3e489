// SPDX-License-Identifier: MIT
//! \file
//! The value type between the data side and the library.
#pragma once

#include <zbBrowserView/platform/zbString.h>

#include <concepts>

//! One value and its kind. The kind is a plain number, since the host may mark values with numbers
//! of its own (`SetKind`); those that carry a value have names here.
//!
//! The library makes an empty one, lets a data property fill it, reads `GetKind()` and then calls
//! the one getter that goes with it. A getter of another kind gives its neutral answer (false, 0 or
//! the empty text) and never converts.
class ZBBROWSERVIEW_API zbVariant {
public:
    static constexpr int None = 0;
    static constexpr int Boolean = 1;
    static constexpr int Integer = 3;
    static constexpr int Long64 = 4;
    //! Two kinds hold a double; they differ in their number alone.
    static constexpr int Double = 5;
    static constexpr int Double6 = 6;
    static constexpr int String = 7;

    //! Kind 0, no value.
    zbVariant() noexcept = default;
    //! Kind 1. Takes a bool and nothing that merely converts to one, a pointer for instance.
    zbVariant(std::same_as<bool> auto value) noexcept
        : kind_(Boolean)
        , number_{.boolean = value} {}
    //! Kind 3.
    zbVariant(int value) noexcept
        : kind_(Integer)
        , number_{.integer = value} {}
    //! Kind 4.
    zbVariant(long value) noexcept
        : kind_(Long64)
        , number_{.long64 = value} {}
    //! Kind 4.
    zbVariant(long long value) noexcept
        : kind_(Long64)
        , number_{.long64 = value} {}
    //! Kind 5; see `SetKind` for kind 6.
    zbVariant(double value) noexcept
        : kind_(Double)
        , number_{.real = value} {}
    //! Kind 7.
    zbVariant(zbString value) noexcept
        : kind_(String)
        , text_(std::move(value)) {}
    //! Kind 7. Null: the empty text.
    zbVariant(char const* value)
        : zbVariant(zbString(value)) {}

    zbVariant(zbVariant const&) = default;
    //! Leaves \p other with kind 0.
    zbVariant(zbVariant&& other) noexcept;
    ~zbVariant() = default;
    //! Assigning a bare value of one of the constructors' types sets kind and value alike.
    zbVariant& operator=(zbVariant const&) = default;
    //! Leaves \p other with kind 0, unless it is this object.
    zbVariant& operator=(zbVariant&& other) noexcept;

    [[nodiscard]] int GetKind() const noexcept { return kind_; }
    //! Any number is taken, also 2, 8 and others that carry no value here. The value stays if the
    //! old and the new kind hold the same type (the same kind, or 5 and 6); else it becomes
    //! neutral.
    void SetKind(int kind) noexcept;

    //! False unless the kind is 1.
    [[nodiscard]] bool GetBoolean() const noexcept;
    //! 0 unless the kind is 3; so for a 64-bit integer too, see `GetLong64`.
    [[nodiscard]] int GetInteger() const noexcept;
    //! 0 unless the kind is 4; so for a 32-bit integer too, see `GetInteger`.
    [[nodiscard]] long long GetLong64() const noexcept;
    //! 0 unless the kind is 5 or 6.
    [[nodiscard]] double GetDouble() const noexcept;
    //! Empty unless the kind is 7. The reference is valid until this object changes or goes.
    [[nodiscard]] zbString const& GetString() const noexcept { return text_; }

private:
    union Number {
        long long long64;
        bool boolean;
        int integer;
        double real;
    };

    int kind_ = None;
    Number number_{.long64 = 0};
    zbString text_; // Empty unless the kind is String.
};

//! The text in which a value is shown: "true" or "false" for kind 1, the decimal number for kind 3,
//! six digits after the point for kinds 5 and 6 (up to 317 bytes; the point is that of the
//! process's C locale), the string itself for kind 7, and nothing for every other kind.
//!
//! Of a 64-bit integer (kind 4) only the low 32 bits are shown, as a signed number: 4294967297
//! shows as "1". Read `GetLong64` where the whole number is wanted.
[[nodiscard]] ZBBROWSERVIEW_API zbString ToText(zbVariant const& value);
