// SPDX-License-Identifier: MIT
//! \file
//! Marks what the shared libraries export. A host need not use it.
#pragma once

#if defined(_WIN32)
#if defined(ZBBROWSERVIEW_BUILDING)
#define ZBBROWSERVIEW_API __declspec(dllexport)
#else
#define ZBBROWSERVIEW_API __declspec(dllimport)
#endif
#else
#define ZBBROWSERVIEW_API __attribute__((visibility("default")))
#endif
