// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <condition_variable>
#include <memory>
#include <mutex>

class SoError;
using SoErrorCB = void(const SoError* error, void* data);

/// The handler of one error class: a callback and its data. Every operation is safe from any thread.
class XSG_API SoErrorHandler
{
public:
    SoErrorHandler(SoErrorCB* callback, void* data);
    SoErrorHandler(const SoErrorHandler&) = delete;
    SoErrorHandler& operator=(const SoErrorHandler&) = delete;

    /// Returns when the callback that was replaced runs on no thread any more, so that what it uses may be
    /// destroyed. Called from inside that callback, it waits for the other threads only.
    void set(SoErrorCB* callback, void* data);
    SoErrorCB* getCallback() const;
    void* getData() const;

    /// Runs the callback on this thread. A callback may post errors itself, down to a depth that ends a
    /// callback which answers each of its own errors with another one.
    void handle(const SoError& error);

private:
    struct Slot {
        SoErrorCB* callback;
        void* data;
        int runs; // on all threads, guarded by the mutex
    };
    class Run;
    mutable std::mutex m_mutex;
    std::condition_variable m_runEnded;
    std::shared_ptr<Slot> m_slot;
};
