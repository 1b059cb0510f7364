// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoErrorHandler.h>

#include <array>
#include <mutex>

#include <QString>

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

    /// What was printed last.
    QString lastText() const;

private:
    struct Handler {
        PostedErrors* owner = nullptr;
        SoErrorCB* callback = nullptr;
        void* data = nullptr;
    };

    static void handle(const SoError* error, void* handler);
    void print(const QString& text);

    std::array<Handler, 6> m_handlers;
    mutable std::mutex m_mutex; // errors are posted on any thread
    QString m_lastText;
};

} // namespace scopix
