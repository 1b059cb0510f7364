// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace xsg
{

/// A thread with an OpenGL context of its own that needs neither a window nor a display. Work given to it
/// runs there while the caller waits, so the contexts that the caller has current stay untouched.
class XSG_API GlThread
{
public:
    GlThread();
    ~GlThread();
    GlThread(const GlThread&) = delete;
    GlThread& operator=(const GlThread&) = delete;

    /// Empty when there is a context, else why not, in one sentence.
    const SbSentence& getError() const { return m_error; }
    /// Runs `work` with the context current and returns when it is done. Nothing runs without a context.
    void run(std::function<void()> work);

private:
    void loop();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::function<void()> m_work;
    bool m_ready = false;
    bool m_quit = false;
    SbSentence m_error;
    std::thread m_thread;
};

} // namespace xsg
