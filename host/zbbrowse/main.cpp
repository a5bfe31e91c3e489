// SPDX-License-Identifier: MIT
//! \file
//! zbbrowse: shows a SQLite database as a view of folders, lists and rows.
#include "zbbrowse/Browse.h"

int main(int argc, char** argv) {
    return zbbrowse::Browse(argc, argv);
}
