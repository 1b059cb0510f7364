// The world of the other benchmarks beside the same one in OpenSceneGraph: what it costs to draw it, to find its
// box and to pick in it. Both draw pictures of the same size, with one light and without smoothed edges, and read
// them back.
#include "EglContext.h"
#include "Ratios.h"
#include "world_scene.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <osg/ComputeBoundsVisitor>
#include <osg/Geometry>
#include <osg/MatrixTransform>
#include <osg/ShapeDrawable>
#include <osgUtil/LineSegmentIntersector>
#include <osgViewer/Viewer>

#include <array>

namespace
{

constexpr int Size = bench::EglContext::Size;

// A transform, which isolates itself, and a cube of its own in each place. The cubes share their points and
// indices, as ours do in the end.
struct OsgWorld {
    osg::ref_ptr<osg::Group> root = new osg::Group;
    osg::ref_ptr<osg::MatrixTransform> last;
};

osg::ref_ptr<osg::Geometry> makeOsgCube()
{
    static constexpr float Sides[6][3][3] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}},
        {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}, {{-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},
        {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}, {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
    };
    osg::ref_ptr<osg::Vec3Array> points(new osg::Vec3Array);
    osg::ref_ptr<osg::Vec3Array> normals(new osg::Vec3Array);
    osg::ref_ptr<osg::DrawElementsUShort> index(new osg::DrawElementsUShort(GL_TRIANGLES));
    for (const auto& side : Sides) {
        const osg::Vec3 normal(side[0][0], side[0][1], side[0][2]);
        const osg::Vec3 right(side[1][0], side[1][1], side[1][2]);
        const osg::Vec3 up(side[2][0], side[2][1], side[2][2]);
        const auto first = static_cast<GLushort>(points->size());
        for (const auto& corner : {normal - right - up, normal + right - up, normal + right + up, normal - right + up}) {
            points->push_back(corner);
            normals->push_back(normal);
        }
        for (const int corner : {0, 1, 2, 0, 2, 3})
            index->push_back(static_cast<GLushort>(first + corner));
    }
    osg::ref_ptr<osg::Geometry> cube(new osg::Geometry);
    cube->setVertexArray(points);
    cube->setNormalArray(normals, osg::Array::BIND_PER_VERTEX);
    cube->addPrimitiveSet(index);
    cube->setUseDisplayList(false);
    cube->setUseVertexBufferObjects(true);
    return cube;
}

OsgWorld makeOsgWorld(int separators)
{
    OsgWorld world;
    const osg::ref_ptr<osg::Geometry> cube = makeOsgCube();
    const int side = worldSide(separators);
    for (int i = 0; i < separators; ++i) {
        const SbVec3f place = worldPlace(i, side);
        world.last = new osg::MatrixTransform(osg::Matrix::translate(place[0], place[1], place[2]));
        world.last->addChild(new osg::Geometry(*cube, osg::CopyOp::SHALLOW_COPY));
        world.root->addChild(world.last);
    }
    return world;
}

void perSeparator(benchmark::State& state)
{
    state.counters["perSeparator"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// --- Boxes

void ourBoxAfresh(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        forgetBoxes(*world);
        state.ResumeTiming();
        benchmark::DoNotOptimize(SoBoundingBoxAction().getBox(world.get()));
    }
    perSeparator(state);
}

void osgBoxAfresh(benchmark::State& state)
{
    const OsgWorld world = makeOsgWorld(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        osg::ComputeBoundsVisitor visitor;
        world.root->accept(visitor);
        benchmark::DoNotOptimize(visitor.getBoundingBox());
    }
    perSeparator(state);
}

void ourBoxAfterOneChange(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    SoBoundingBoxAction().getBox(world.get());
    float x = 0;
    for (auto _ : state) {
        lastTransform(*world).translation.setValue(x += 0.001F, 0, 0);
        benchmark::DoNotOptimize(SoBoundingBoxAction().getBox(world.get()));
    }
    perSeparator(state);
}

// A sphere instead of a box: what the library keeps.
void osgBoxAfterOneChange(benchmark::State& state)
{
    const OsgWorld world = makeOsgWorld(static_cast<int>(state.range(0)));
    world.root->getBound();
    float x = 0;
    for (auto _ : state) {
        world.last->setMatrix(osg::Matrix::translate(x += 0.001F, 0, 0));
        benchmark::DoNotOptimize(world.root->getBound());
    }
    perSeparator(state);
}

// --- Picking

void ourPick(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    const SbVec3f target = lastTransform(*world).translation.getValue();
    SoRayPickAction action;
    bool found = action.pick(world.get(), {{0, 0, 10}, {0, 0, -1}}).has_value(); // boxes are remembered
    for (auto _ : state)
        found = action.pick(world.get(), {target + SbVec3f(0, 0, 10), {0, 0, -1}}).has_value() && found;
    if (!found)
        state.SkipWithError("Nothing was picked.");
    perSeparator(state);
}

void osgPick(benchmark::State& state)
{
    const OsgWorld world = makeOsgWorld(static_cast<int>(state.range(0)));
    const osg::Vec3d target = world.last->getMatrix().getTrans();
    world.root->getBound(); // is remembered
    bool found = true;
    for (auto _ : state) {
        const osg::ref_ptr<osgUtil::LineSegmentIntersector> ray(new osgUtil::LineSegmentIntersector(
            target + osg::Vec3d(0, 0, 10), target - osg::Vec3d(0, 0, 1e6)));
        ray->setIntersectionLimit(osgUtil::Intersector::LIMIT_NEAREST);
        osgUtil::IntersectionVisitor visitor(ray);
        world.root->accept(visitor);
        found = ray->containsIntersections() && found;
    }
    if (!found)
        state.SkipWithError("Nothing was picked.");
    perSeparator(state);
}

// --- Drawing: an unchanged scene, one transform changed, and the eye moved

enum class Change { None, OneField, Eye };

void ourFrame(benchmark::State& state, Change change)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->viewAll(SoBoundingBoxAction().getBox(world.get()), 1);
    SoOffscreenRenderer renderer;
    renderer.setSamples(1);
    SoPixels pixels;
    if (!renderer.render(world.get(), camera.get(), Size, Size, pixels)) {
        state.SkipWithError(renderer.getErrorText().c_str());
        return;
    }
    float x = 0;
    for (auto _ : state) {
        x = 0.5F - x;
        if (change == Change::OneField)
            lastTransform(*world).translation.setValue(x, 0, 0);
        if (change == Change::Eye)
            camera->pan(0.001F * (x - 0.25F), 0);
        renderer.render(world.get(), camera.get(), Size, Size, pixels);
    }
    state.counters["sawSomething"] = hasPicture(pixels.rgba) ? 1 : 0;
    perSeparator(state);
}

void osgFrame(benchmark::State& state, Change change)
{
    const bench::EglContext context;
    if (!context) {
        state.SkipWithError("There is no OpenGL here.");
        return;
    }
    OsgWorld world = makeOsgWorld(static_cast<int>(state.range(0)));
    world.root->getOrCreateStateSet()->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    osgViewer::Viewer viewer;
    viewer.setThreadingModel(osgViewer::Viewer::SingleThreaded);
    viewer.setUpViewerAsEmbeddedInWindow(0, 0, Size, Size);
    viewer.setSceneData(world.root);
    const osg::BoundingSphere sphere = world.root->getBound();
    const double distance = sphere.radius() * 3;
    viewer.getCamera()->setProjectionMatrixAsPerspective(45, 1, 0.1, 10 * distance);
    viewer.getCamera()->setClearColor({0, 0, 0, 1});
    // It would leave out everything that is smaller than two pixels.
    viewer.getCamera()->setCullingMode(viewer.getCamera()->getCullingMode() &
                                       ~osg::CullSettings::SMALL_FEATURE_CULLING);
    std::vector<unsigned char> pixels(4 * Size * Size);
    osg::Vec3d eye = sphere.center() + osg::Vec3d(0, 0, distance);
    const auto frame = [&] {
        viewer.getCamera()->setViewMatrixAsLookAt(eye, eye - osg::Vec3d(0, 0, 1), {0, 1, 0});
        viewer.frame();
        glReadPixels(0, 0, Size, Size, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    };
    frame();
    float x = 0;
    for (auto _ : state) {
        x = 0.5F - x;
        if (change == Change::OneField)
            world.last->setMatrix(osg::Matrix::translate(x, 0, 0));
        if (change == Change::Eye)
            eye[0] += 0.1 * (x - 0.25);
        frame();
    }
    state.counters["sawSomething"] = hasPicture(pixels) ? 1 : 0;
    perSeparator(state);
}

void sizes(benchmark::internal::Benchmark* each)
{
    each->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
}

void wallSizes(benchmark::internal::Benchmark* each)
{
    sizes(each);
    each->UseRealTime(); // the drawing is on other threads
}

} // namespace

BENCHMARK(ourBoxAfresh)->Apply(sizes);
BENCHMARK(osgBoxAfresh)->Apply(sizes);
BENCHMARK(ourBoxAfterOneChange)->Apply(sizes);
BENCHMARK(osgBoxAfterOneChange)->Apply(sizes);
BENCHMARK(ourPick)->Apply(sizes);
BENCHMARK(osgPick)->Apply(sizes);
BENCHMARK_CAPTURE(ourFrame, unchanged, Change::None)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, unchanged, Change::None)->Apply(wallSizes);
BENCHMARK_CAPTURE(ourFrame, oneField, Change::OneField)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, oneField, Change::OneField)->Apply(wallSizes);
BENCHMARK_CAPTURE(ourFrame, eye, Change::Eye)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, eye, Change::Eye)->Apply(wallSizes);

int main(int argc, char** argv)
{
    return bench::run(
        argc, argv,
        {{"box of 100,000, afresh: OpenSceneGraph over ours", "osgBoxAfresh/100000", "ourBoxAfresh/100000", "aim: above 1"},
         {"box of 100,000, one change: OpenSceneGraph over ours", "osgBoxAfterOneChange/100000",
          "ourBoxAfterOneChange/100000", "aim: above 1"},
         {"picking in 100,000: OpenSceneGraph over ours", "osgPick/100000", "ourPick/100000", "aim: above 1"},
         {"drawing 100,000, unchanged: OpenSceneGraph over ours", "osgFrame/unchanged/100000",
          "ourFrame/unchanged/100000", "aim: above 1"},
         {"drawing 100,000, one change: OpenSceneGraph over ours", "osgFrame/oneField/100000",
          "ourFrame/oneField/100000", "aim: above 1"},
         {"drawing 100,000, eye moved: OpenSceneGraph over ours", "osgFrame/eye/100000", "ourFrame/eye/100000",
          "aim: above 1"}});
}
