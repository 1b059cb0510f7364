// SPDX-License-Identifier: MIT
// scopix-live [--no-window] [--stones COUNT] [--frames COUNT]: a mill that inspectors can attach to. The
// first line that it writes is where it listens.
#include "MillWindow.h"

#include <QtWidgets/QApplication>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>

namespace
{

struct Options {
    bool hasWindow = true;
    int stones = 20;
    long frames = -1; // as many as there are
};

Options optionsOf(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--no-window")
            options.hasWindow = false;
        else if (argument == "--stones" && i + 1 < argc)
            options.stones = std::atoi(argv[++i]);
        else if (argument == "--frames" && i + 1 < argc)
            options.frames = std::atol(argv[++i]);
    }
    return options;
}

void announce(const scopix::live::Server& server)
{
    std::puts(server.problem().empty() ? server.socketPath().c_str() : server.problem().c_str());
    std::fflush(stdout);
}

int runInWindow(int argc, char** argv, Mill& mill, scopix::live::XsgAdapter& adapter,
                scopix::live::Server& server)
{
    QApplication application(argc, argv);
    MillWindow window(mill, adapter, server);
    window.show();
    return QApplication::exec();
}

/// The time between two frames, cut short when an inspector asks something.
class Pause
{
public:
    void end()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
        m_end.notify_one();
    }
    void take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_end.wait_for(lock, std::chrono::milliseconds(5), [this] { return m_isOver; });
        m_isOver = false;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isOver = false;
};

int runWithoutWindow(long frames, Mill& mill, scopix::live::Server& server)
{
    Pause pause;
    server.setWake([&pause] { pause.end(); });
    for (long frame = 0; frames < 0 || frame < frames; ++frame) {
        mill.step();
        server.betweenFrames();
        pause.take();
    }
    server.setWake({});
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const Options options = optionsOf(argc, argv);
    Mill mill(options.stones);
    scopix::live::XsgAdapter adapter(mill.root.get());
    adapter.setCamera(mill.camera.get());
    scopix::live::Server server(adapter, "mill");
    announce(server);
    return options.hasWindow ? runInWindow(argc, argv, mill, adapter, server)
                             : runWithoutWindow(options.frames, mill, server);
}
