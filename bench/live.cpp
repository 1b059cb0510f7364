// SPDX-License-Identifier: MIT
// What it costs a program that inspectors may attach to it: a frame with nobody there, with one who looks at
// nothing, and with ten fields shown; how long one edit takes there and back, and how long it takes to
// attach.
#include "Ratios.h"
#include "world_scene.h"

#include <scopix/live/client/Client.h>
#include <scopix/live/server/Server.h>
#include <scopix/live/values/LivePacking.h>
#include <scopix/live/xsg/XsgAdapter.h>

#include <xsg/render/SoOffscreenRenderer.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <poll.h>

using namespace scopix::live;

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int Separators = 33333; // of three nodes each

double seconds(Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

/// A program with an inspector, in one thread.
struct Program {
    explicit Program(int separators)
        : world(makeWorld(separators))
        , adapter(world.get())
        , server(adapter, "bench")
        , client(listener)
    {
    }
    void attach() { client.connect(server.socketPath()); }
    template <class Done>
    void runUntil(Done done)
    {
        while (!done()) {
            server.betweenFrames();
            client.process();
        }
    }
    std::vector<NodeInfo> roots()
    {
        std::vector<NodeInfo> roots;
        client.roots([&roots](std::vector<NodeInfo> answer) { roots = std::move(answer); });
        runUntil([&roots] { return !roots.empty(); });
        return roots;
    }
    SoTransform& transform(int i) const
    {
        return static_cast<SoTransform&>(*static_cast<SoGroup*>(world->getChild(i))->getChild(0));
    }

    SoRef<SoSeparator> world;
    XsgAdapter adapter;
    Server server;
    ClientListener listener;
    Client client;
};

void frame(benchmark::State& state)
{
    const Program program(Separators);
    SoOffscreenRenderer renderer;
    SoPixels pixels;
    float x = 0;
    renderer.render(program.world.get(), nullptr, 64, 64, pixels); // which uploads everything
    for (auto _ : state) {
        program.transform(7).translation.setValue(x += 0.001F, 0, 0);
        if (!renderer.render(program.world.get(), nullptr, 64, 64, pixels))
            state.SkipWithError(renderer.getErrorText().c_str());
    }
}
BENCHMARK(frame)->Unit(benchmark::kMicrosecond)->UseRealTime();

void nobodyAttached(benchmark::State& state)
{
    Program program(Separators);
    for (auto _ : state)
        program.server.betweenFrames();
}
BENCHMARK(nobodyAttached)->Unit(benchmark::kMicrosecond)->UseRealTime();

void nothingShown(benchmark::State& state)
{
    Program program(Separators);
    program.attach();
    program.roots();
    for (auto _ : state)
        program.server.betweenFrames();
}
BENCHMARK(nothingShown)->Unit(benchmark::kMicrosecond)->UseRealTime();

// Sixty frames a second; in each, ten shown fields have changed.
void tenFieldsShown(benchmark::State& state)
{
    Program program(Separators);
    program.attach();
    std::vector<NodeInfo> parts;
    program.client.children(program.roots().at(0).id, 0, 10,
                            [&parts](std::vector<NodeInfo> answer) { parts = std::move(answer); });
    program.runUntil([&parts] { return !parts.empty(); });
    for (const NodeInfo& part : parts)
        program.client.children(part.id, 0, 1, [&program](const std::vector<NodeInfo>& children) {
            program.client.watch(children.at(0).id, true);
        });
    program.roots();
    program.roots();
    float x = 0;
    for (auto _ : state) {
        for (int i = 0; i < 10; ++i)
            program.transform(i).translation.setValue(x += 0.001F, 0, 0);
        const auto start = Clock::now();
        program.server.betweenFrames();
        state.SetIterationTime(seconds(Clock::now() - start));
        std::this_thread::sleep_until(start + std::chrono::milliseconds(16));
        program.client.process();
    }
}
BENCHMARK(tenFieldsShown)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(60);

/// A program in a thread of its own, which works when it is asked.
class Working
{
public:
    explicit Working(int separators)
        : m_thread([this, separators] { run(separators); })
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_path.empty(); });
    }
    ~Working()
    {
        wake(true);
        m_thread.join();
    }
    const std::string& path() const { return m_path; }

private:
    void wake(bool ends)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWoken = true;
        m_ends |= ends;
        m_changed.notify_all();
    }
    void run(int separators)
    {
        const auto world = makeWorld(separators);
        XsgAdapter adapter(world.get());
        Server server(adapter, "bench");
        server.setWake([this] { wake(false); });
        std::unique_lock<std::mutex> lock(m_mutex);
        m_path = server.socketPath();
        m_changed.notify_all();
        while (!m_ends) {
            m_changed.wait(lock, [this] { return m_isWoken; });
            m_isWoken = false;
            lock.unlock();
            server.betweenFrames();
            lock.lock();
        }
        lock.unlock();
        server.setWake({});
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_path;
    bool m_isWoken = false;
    bool m_ends = false;
    std::thread m_thread; // last: it uses the others
};

template <class Done>
void runUntil(Client& client, Done done)
{
    while (!done()) {
        client.process();
        pollfd file{client.fileDescriptor(), POLLIN, 0};
        if (!done())
            poll(&file, 1, 100);
    }
}

NodeId rootOf(Client& client)
{
    NodeId root = 0;
    client.roots([&root](const std::vector<NodeInfo>& roots) { root = roots.at(0).id; });
    runUntil(client, [&root] { return root != 0; });
    return root;
}

NodeId firstChild(Client& client, NodeId parent)
{
    NodeId child = 0;
    client.children(parent, 0, 1,
                    [&child](const std::vector<NodeInfo>& children) { child = children.at(0).id; });
    runUntil(client, [&child] { return child != 0; });
    return child;
}

void oneEdit(benchmark::State& state)
{
    const Working program(Separators);
    ClientListener listener;
    Client client(listener);
    client.connect(program.path());
    const NodeId transform = firstChild(client, firstChild(client, rootOf(client)));
    float place[3] = {0, 0, 0};
    for (auto _ : state) {
        place[0] += 0.001F;
        bool taken = false;
        client.write(transform, "translation", packed(ValueKind::Vec3f, place),
                     [&taken](const WriteResult& result) { taken = result.taken; });
        runUntil(client, [&taken] { return taken; });
    }
}
BENCHMARK(oneEdit)->Unit(benchmark::kMicrosecond)->UseRealTime();

// The argument is the number of nodes.
void attach(benchmark::State& state)
{
    const Working program(static_cast<int>(state.range(0)) / 3);
    for (auto _ : state) {
        ClientListener listener;
        Client client(listener);
        client.connect(program.path());
        benchmark::DoNotOptimize(firstChild(client, rootOf(client)));
    }
}
BENCHMARK(attach)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime()
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv,
                      {{"nobody attached, of a frame", "nobodyAttached", "frame", "0: one load"},
                       {"attached, nothing shown, of a frame", "nothingShown", "frame", "< 0.01"},
                       {"ten fields shown, of a frame", "tenFieldsShown", "frame", "< 0.1 ms"},
                       {"attached to 1e6 nodes, of 1e3", "attach/1000000", "attach/1000", "1"}});
}
