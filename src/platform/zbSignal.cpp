// SPDX-License-Identifier: MIT
//! \file
//! The policy of all signals here.
#include <zbBrowserView/platform/zbSignal.h>

single_threaded::~single_threaded() = default;

void single_threaded::lock() {
}

void single_threaded::unlock() {
}

template class zbSignalBase<single_threaded>;
template class zbListener<single_threaded>;
template class zbSignalTracker<single_threaded>;
