// SPDX-License-Identifier: MIT
// scopix-live [--no-window] [--stones COUNT] [--frames COUNT]: a mill that inspectors can attach to. The
// first line that it writes is where it listens.
#include "MillWindow.h"

#include <QtWidgets/QApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

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

int runWithoutWindow(long frames, Mill& mill, scopix::live::Server& server)
{
    for (long frame = 0; frames < 0 || frame < frames; ++frame) {
        mill.step();
        server.betweenFrames();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
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
