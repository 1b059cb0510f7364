// SPDX-License-Identifier: MIT
// What large scenes cost: to mark what is selected, to draw groups that stand in many places, and the memory
// that a cube takes when its box is known and it has been drawn, beside its own nodes. Times are those of the
// processor on all threads, which draw where there is no graphics card.
#include "Ratios.h"
#include "world_measures.h"

#include "support/HeapInUse.h"
#include "support/SharedLevels.h"

#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>

namespace
{

constexpr int MeshSide = 700; // squares along the mesh, of two triangles each
constexpr int SharedLevels = 16;
constexpr int Pixels = 600;

// A wavy surface.
SoRef<SoSeparator> makeMesh()
{
    std::vector<SbVec3f> corners;
    std::vector<std::int32_t> index;
    constexpr int Row = MeshSide + 1;
    for (int i = 0; i < Row * Row; ++i) {
        const float x = static_cast<float>(i % Row) / MeshSide;
        const float y = static_cast<float>(i / Row) / MeshSide;
        corners.emplace_back(x, y, 0.1F * std::sin(20 * x) * std::cos(17 * y));
        if (i % Row < MeshSide && i / Row < MeshSide)
            index.insert(index.end(), {i, i + 1, i + Row + 1, i, i + Row + 1, i + Row});
    }
    SoRef<SoSeparator> root(new SoSeparator);
    auto* points = new SoPoints;
    points->points.setValues(0, static_cast<int>(corners.size()), corners.data());
    auto* faces = new SoIndexedTriangleSet;
    faces->index.setValues(0, static_cast<int>(index.size()), index.data());
    root->addChild(points);
    root->addChild(faces);
    return root;
}

class View
{
public:
    explicit View(SoSeparator* scene)
        : m_scene(scene)
    {
        m_camera->viewAll(SoBoundingBoxAction().getBox(scene), 1);
    }
    bool draw() { return m_renderer.render(m_scene.get(), m_camera.get(), Pixels, Pixels, m_pixels); }
    void mark() { m_renderer.getRenderer().setHighlight(m_scene.get()); }
    // So that the rasterizer has nothing to do: it depends on what covers what, and its memory varies.
    void lookAway() { m_camera->position.setValue(m_camera->position.getValue() + SbVec3f(1e6F, 0, 0)); }

private:
    SoRef<SoSeparator> m_scene;
    SoRef<SoPerspectiveCamera> m_camera{new SoPerspectiveCamera};
    SoOffscreenRenderer m_renderer;
    SoPixels m_pixels;
};

void drawAgain(benchmark::State& state, SoSeparator* scene, bool isMarked)
{
    View view(scene);
    if (isMarked)
        view.mark();
    if (!view.draw())
        state.SkipWithError("Nothing was drawn.");
    for (auto _ : state)
        view.draw();
}

void plainMesh(benchmark::State& state)
{
    drawAgain(state, makeMesh().get(), false);
}

void markedMesh(benchmark::State& state)
{
    drawAgain(state, makeMesh().get(), true);
}

void plainCubes(benchmark::State& state)
{
    drawAgain(state, makeWorld(1 << SharedLevels).get(), false);
}

void markedCubes(benchmark::State& state)
{
    drawAgain(state, makeWorld(1 << SharedLevels).get(), true);
}

enum class Look { At, Away };

void openAndDraw(benchmark::State& state, SoSeparator* scene, Look look)
{
    for (auto _ : state) {
        View view(scene);
        if (look == Look::Away)
            view.lookAway();
        view.draw();
    }
}

void openCubes(benchmark::State& state)
{
    openAndDraw(state, makeWorld(1 << SharedLevels).get(), Look::Away);
}

void openSharedCubes(benchmark::State& state)
{
    openAndDraw(state, makeSharedLevels(SharedLevels, true).get(), Look::Away);
}

void openSharedCubesInOnePlace(benchmark::State& state)
{
    openAndDraw(state, makeSharedLevels(SharedLevels, false).get(), Look::At);
}

BENCHMARK(plainMesh)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(markedMesh)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(plainCubes)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(markedCubes)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(openCubes)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(openSharedCubes)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(openSharedCubesInOnePlace)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

std::size_t bytesToShow(SoSeparator* scene)
{
    const std::size_t before = heapInUse();
    View view(scene);
    view.lookAway();
    for (int picture = 0; picture < 3; ++picture)
        view.draw();
    return heapInUse() - before;
}

// Between two sizes, so that what every picture takes does not count.
void printBytesPerCube(const char* what, const SoRef<SoSeparator>& few, int fewCubes,
                       const SoRef<SoSeparator>& many, int manyCubes)
{
    const auto forFew = static_cast<double>(bytesToShow(few.get()));
    const auto forMany = static_cast<double>(bytesToShow(many.get()));
    std::printf("%-64s %6.0f B  aim: at most 1000\n", what, (forMany - forFew) / (manyCubes - fewCubes));
}

} // namespace

int main(int argc, char** argv)
{
    const int failed = bench::run(
        argc, argv,
        {{"a mesh of a million triangles, marked over plain", "markedMesh", "plainMesh", "at most 1.5"},
         {"65,536 cubes, marked over plain", "markedCubes", "plainCubes", "at most 1.5"},
         {"65,536 cubes, opened, nothing filled: shared over their own", "openSharedCubes", "openCubes",
          "about 1.3: so many nodes more are met"},
         {"65,536 cubes in one place, drawn, over 65,536 apart, not drawn", "openSharedCubesInOnePlace",
          "openCubes", "about 1"}});
    heapInUse(); // from here on it counts exactly
    bytesToShow(makeSharedLevels(2, true).get());
    printBytesPerCube("memory to show a cube, beside its own nodes", makeWorld(10'000), 10'000,
                      makeWorld(100'000), 100'000);
    printBytesPerCube("memory to show a cube, shared", makeSharedLevels(12, true), 1 << 12,
                      makeSharedLevels(SharedLevels, true), 1 << SharedLevels);
    return failed;
}
