// SPDX-License-Identifier: MIT
// What it costs a program on OpenSceneGraph, between two frames, that inspectors may attach to it: with
// nobody there, with one who looks at nothing, and with ten fields shown; how long one edit takes there and
// back, and how long it takes to attach.
#include "Ratios.h"

#include <scopix/live/client/Client.h>
#include <scopix/live/values/LivePacking.h>

#include <osg/Geode>
#include <osg/MatrixTransform>
#include <osg/ShapeDrawable>
#include <osgViewer/Viewer>

#include <chrono>
#include <thread>

#include <time.h>

using namespace scopix::live;

extern "C" void scopixLiveBetweenFrames(osgViewer::ViewerBase* viewer);

namespace
{

using Clock = std::chrono::steady_clock;

/// A program that has drawn a frame of so many nodes, and an inspector, in one thread. The adapter serves all
/// viewers of the thread: there is one program at a time.
class Program
{
public:
    explicit Program(int nodes)
    {
        osg::ref_ptr<osg::Group> world = new osg::Group;
        osg::ref_ptr<osg::Drawable> ball = new osg::ShapeDrawable(new osg::Sphere);
        for (int i = 0; i < nodes / 2; ++i) {
            osg::ref_ptr<osg::MatrixTransform> place = new osg::MatrixTransform;
            osg::ref_ptr<osg::Geode> geode = new osg::Geode;
            geode->addDrawable(ball);
            place->addChild(geode);
            world->addChild(place);
            if (m_places.size() < 10)
                m_places.push_back(place);
        }
        m_viewer.setSceneData(world);
        frame();
    }
    void frame() { scopixLiveBetweenFrames(&m_viewer); }
    void attach(Client& client)
    {
        const std::vector<scopix::live::Program> programs = listPrograms();
        client.connect(programs.at(0).socketPath);
    }
    template <class Done>
    void runUntil(Client& client, Done done)
    {
        while (!done()) {
            frame();
            client.process();
        }
    }
    NodeId firstBelow(Client& client, NodeId parent) { return below(client, parent, 1).at(0).id; }
    std::vector<NodeInfo> below(Client& client, NodeId parent, std::uint32_t count)
    {
        std::vector<NodeInfo> nodes;
        const auto answer = [&nodes](std::vector<NodeInfo> all) { nodes = std::move(all); };
        if (parent == 0)
            client.roots(answer);
        else
            client.children(parent, 0, count, answer);
        runUntil(client, [&nodes] { return !nodes.empty(); });
        return nodes;
    }
    void move(float x)
    {
        for (osg::MatrixTransform* place : m_places)
            place->setMatrix(osg::Matrix::translate(x, 0, 0));
    }

private:
    osgViewer::Viewer m_viewer;
    std::vector<osg::MatrixTransform*> m_places;
};

constexpr int Nodes = 100000;

void nobodyAttached(benchmark::State& state)
{
    Program program(Nodes);
    for (auto _ : state)
        program.frame();
}
BENCHMARK(nobodyAttached)->Unit(benchmark::kMicrosecond)->UseRealTime();

void nothingShown(benchmark::State& state)
{
    Program program(Nodes);
    ClientListener listener;
    Client client(listener);
    program.attach(client);
    program.firstBelow(client, 0);
    for (auto _ : state)
        program.frame();
}
BENCHMARK(nothingShown)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// What this thread has computed so far: on a busy machine, the time between two frames is others' too.
double computedSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

// Sixty frames a second; in each, ten shown fields have changed, of ten nodes of which all are shown.
void tenFieldsShown(benchmark::State& state)
{
    Program program(Nodes);
    ClientListener listener;
    Client client(listener);
    program.attach(client);
    const NodeId world = program.firstBelow(client, program.firstBelow(client, 0));
    for (const NodeInfo& place : program.below(client, world, 10))
        client.watch(place.id, true);
    program.firstBelow(client, 0);
    float x = 0;
    for (auto _ : state) {
        program.move(x += 0.001F);
        const auto start = Clock::now();
        const double before = computedSeconds();
        program.frame();
        state.SetIterationTime(computedSeconds() - before);
        std::this_thread::sleep_until(start + std::chrono::milliseconds(16));
        client.process();
    }
}
BENCHMARK(tenFieldsShown)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(60);

// There and back, with a frame of the program whenever it has nothing else to do.
void oneEdit(benchmark::State& state)
{
    Program program(Nodes);
    ClientListener listener;
    Client client(listener);
    program.attach(client);
    const NodeId world = program.firstBelow(client, program.firstBelow(client, 0));
    const NodeId place = program.firstBelow(client, world);
    double matrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    for (auto _ : state) {
        matrix[12] += 0.001;
        bool taken = false;
        client.write(place, "Matrix", packed(ValueKind::Matrix, matrix),
                     [&taken](const WriteResult& result) { taken = result.taken; });
        program.runUntil(client, [&taken] { return taken; });
    }
}
BENCHMARK(oneEdit)->Unit(benchmark::kMicrosecond)->UseRealTime();

// The argument is the number of nodes; until the first ones are there.
void attach(benchmark::State& state)
{
    Program program(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ClientListener listener;
        Client client(listener);
        program.attach(client);
        const NodeId world = program.firstBelow(client, program.firstBelow(client, 0));
        benchmark::DoNotOptimize(program.below(client, world, 500));
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
                      {{"attached, nothing shown, of nobody attached", "nothingShown", "nobodyAttached", ""},
                       {"ten fields shown, of nothing shown", "tenFieldsShown", "nothingShown", "< 0.1 ms"},
                       {"attached to 1e6 nodes, of 1e3", "attach/1000000", "attach/1000", "< 1 s"}});
}
