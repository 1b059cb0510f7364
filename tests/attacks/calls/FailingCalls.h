// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Makes one system call of a process fail, or more. The library that has these stands before the C library
/// in the order in which names are looked up, by being linked first or preloaded, so that every call of a
/// program and of its libraries goes through it; what the C library calls inside of itself does not, which is
/// why the functions of <stdio.h> are taken for the system calls behind them. Calls count only where they act
/// on regular files: pipes and event loops do not fail in the ways of disks.
///
/// Preloaded, it reads what to do from the environment: SCOPIX_FAIL=CALL:N:WHAT, such as "write:3:ENOSPC",
/// for files below the folder SCOPIX_FAIL_IN where that is given. Never installed.
namespace failing
{

enum Call { Open, Read, Write, Sync, Rename, Close, Map, CallCount };

struct Fault {
    Call call = Open;
    int nth = 1;        // counted from when it was set
    int error = 0;      // errno; 0: the call does half of its work
    bool stays = false; // all further calls of the kind fail too, as on a full disk
};

extern "C" {
/// Counts calls from now on, and lets them fail as `fault` says; null: lets all of them pass, uncounted.
__attribute__((visibility("default"))) void failingSet(const Fault* fault);
/// Only calls on files below this folder count from now on; null: on all. It must outlive its use.
__attribute__((visibility("default"))) void failingBelow(const char* folder);
/// How many calls of the kind there were.
__attribute__((visibility("default"))) int failingCount(Call call);
}

} // namespace failing
