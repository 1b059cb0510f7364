// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoErrorHandler.h>

#include <mutex>
#include <string>
#include <vector>

namespace scopix
{

/// While it lives, the errors that the scene graph posts become notes instead of lines on standard error.
class PostedNotes
{
public:
    /// `notes` must outlive this.
    explicit PostedNotes(std::vector<std::string>& notes);
    ~PostedNotes();
    PostedNotes(const PostedNotes&) = delete;
    PostedNotes& operator=(const PostedNotes&) = delete;

private:
    static void keep(const SoError* error, void* self);

    struct Handler {
        SoErrorCB* callback;
        void* data;
    };
    std::vector<std::string>& m_notes;
    std::vector<Handler> m_before;
    std::mutex m_mutex; // they are posted by any thread
};

} // namespace scopix
