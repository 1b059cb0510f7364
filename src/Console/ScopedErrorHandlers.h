// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoErrorHandler.h>

#include <array>

/// Takes over the handlers of the six scene-graph error classes, and gives them back.
class ScopedErrorHandlers
{
public:
    /// Saves what is there, then installs the callback on all six.
    ScopedErrorHandlers(SoErrorCB* callback, void* data);
    ScopedErrorHandlers(const ScopedErrorHandlers&) = delete;
    ScopedErrorHandlers& operator=(const ScopedErrorHandlers&) = delete;
    /// Puts back what was saved; returns when the callback runs on no other thread any more.
    ~ScopedErrorHandlers();

private:
    struct Handler {
        SoErrorCB* callback;
        void* data;
    };
    std::array<Handler, 6> m_saved;
};
