// SPDX-License-Identifier: MIT
//! \file
//! Marks what the SQLite data side exports. A host need not use it.
#pragma once

#if defined(_WIN32)
#if defined(ZBSQLITE_BUILDING)
#define ZBSQLITE_API __declspec(dllexport)
#else
#define ZBSQLITE_API __declspec(dllimport)
#endif
#else
#define ZBSQLITE_API __attribute__((visibility("default")))
#endif
