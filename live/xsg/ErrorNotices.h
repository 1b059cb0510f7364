// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <xsg/errors/SoErrorHandler.h>

#include <deque>
#include <mutex>

namespace scopix::live
{

/// Keeps what the scene graph posts as errors, on any thread, while the program's own handlers go on to hear
/// it. At most one lives at a time.
class ErrorNotices
{
public:
    ErrorNotices();
    ~ErrorNotices();
    ErrorNotices(const ErrorNotices&) = delete;
    ErrorNotices& operator=(const ErrorNotices&) = delete;

    std::vector<Notice> take();

private:
    struct Former {
        SoErrorCB* callback;
        void* data;
    };
    struct Handling {
        ErrorNotices* notices;
        Former former;
    };
    static void handle(const SoError* error, void* handling);
    void add(Notice notice);
    template <class Error>
    void hearOf(Handling& handling);
    template <class Error>
    void leave(const Handling& handling);

    std::mutex m_mutex;
    std::deque<Notice> m_notices;
    Handling m_errors{this, {}};
    Handling m_debugErrors{this, {}};
    Handling m_readErrors{this, {}};
    Handling m_memoryErrors{this, {}};
};

} // namespace scopix::live
