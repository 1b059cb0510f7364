// SPDX-License-Identifier: MIT
#include "program/EndOfSession.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace scopix
{

namespace
{

EndOfSession* s_end = nullptr;
volatile std::sig_atomic_t s_signal = 0; // which came
int s_pipe[2] = {-1, -1};                // tells the event loop of it

constexpr int EndSignals[] = {SIGTERM, SIGHUP, SIGINT};

// Calls nothing that a signal handler may not call.
extern "C" void noteSignal(int signal)
{
    if (s_signal != 0)
        std::signal(signal, SIG_DFL);
    if (s_signal != 0)
        std::raise(signal);
    s_signal = signal;
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(s_pipe[1], &byte, 1);
    errno = before;
}

void setHandler(int signal, void (*handler)(int))
{
    struct sigaction action {
    };
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN)
        return;
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

} // namespace

EndOfSession::EndOfSession(Keep keep)
    : m_keep(std::move(keep))
{
    s_end = this;
    // From the event loop, when the plug-ins have been loaded: what is registered last is called first, and
    // the scene may need what theirs would destroy.
    QTimer::singleShot(0, this, [] { std::atexit(keepAtExit); });
    if (pipe2(s_pipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        auto* notifier = new QSocketNotifier(s_pipe[0], QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &EndOfSession::signalled);
        for (const int signal : EndSignals)
            setHandler(signal, noteSignal);
    }
    // Otherwise the toolkit closes the windows, which then ask.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { m_keep(Widgets::Usable); });
}

EndOfSession::~EndOfSession()
{
    s_end = nullptr;
    for (const int signal : EndSignals)
        setHandler(signal, SIG_DFL);
    for (const int end : s_pipe)
        close(end);
}

void EndOfSession::signalled()
{
    char byte = 0;
    while (read(s_pipe[0], &byte, 1) == 1) {
    }
    m_keep(Widgets::Usable);
    QCoreApplication::exit(128 + s_signal);
}

// On whatever thread exit() was called; the scene is of use on its own only.
void EndOfSession::keepAtExit()
{
    if (s_end && QThread::currentThread() == s_end->thread())
        s_end->m_keep(Widgets::Lost);
}

int EndOfSession::endWith(int status)
{
    if (s_signal == 0)
        return status;
    std::fflush(nullptr);
    std::raise(s_signal);
    return 128 + s_signal;
}

} // namespace scopix
