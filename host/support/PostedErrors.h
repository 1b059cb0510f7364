// SPDX-License-Identifier: MIT
#pragma once

#include "support/UnhandledErrors.h"

#include <xsg/errors/SoErrorHandler.h>

#include <array>

namespace scopix
{

/// While it lives, every message that the scene graph posts is printed on standard error as well, whoever
/// handles it: for sessions in which nobody looks at a console. Made and destroyed on the GUI thread, after
/// and before whatever else takes over the handlers.
class PostedErrors
{
public:
    PostedErrors();
    PostedErrors(const PostedErrors&) = delete;
    PostedErrors& operator=(const PostedErrors&) = delete;
    ~PostedErrors();

private:
    struct Handler {
        SoErrorCB* callback = nullptr;
        void* data = nullptr;
    };

    static void handle(const SoError* error, void* handler);

    std::array<Handler, 6> m_handlers;
    UnhandledErrors::Held m_unhandled; // are among those that are printed here
};

} // namespace scopix
