// SPDX-License-Identifier: MIT
// The world of the other benchmarks beside the same one in OpenSceneGraph: what it costs to draw it, to find
// its box and to pick in it. Both draw the same cubes into pictures of the same size, all of them in sight,
// with one light and without smoothed edges, leave out what is out of sight and nothing else, and read the
// picture back.
//
// Frames are measured twice. Whole ones are what a user waits for; with a software
// renderer they mostly show how fast it fills the picture. The others show the render traversal: on both
// sides OpenGL's draw calls return at once, so that all the work up to them is left: finding what is in
// sight, sorting it, setting state, filling buffers and making the calls.
//
// For the box, no separator of ours remembers anything; OpenSceneGraph's cubes each keep their own box.
#include "EglContext.h"
#include "Ratios.h"
#include "world_measures.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/Geometry>
#include <osg/Material>
#include <osg/MatrixTransform>
#include <osg/ShapeDrawable>
#include <osgUtil/LineSegmentIntersector>
#include <osgViewer/Viewer>

#include <dlfcn.h>

namespace
{

std::int64_t osgDrawCalls = 0;

} // namespace

// In the place of OpenGL's own, for OpenSceneGraph, which calls it by this name.
#undef glDrawElements
extern "C" __attribute__((visibility("default"))) void glDrawElements(GLenum mode, GLsizei count, GLenum type,
                                                                      const void* indices)
{
    using Function = void (*)(GLenum, GLsizei, GLenum, const void*);
    static const auto drawElements = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "glDrawElements"));
    ++osgDrawCalls;
    if (!bench::areDrawCallsLeftOut)
        drawElements(mode, count, type, indices);
}

namespace
{

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
        for (const auto& corner :
             {normal - right - up, normal + right - up, normal + right + up, normal - right + up}) {
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

// The same without anything that two cubes share.
OsgWorld makeOsgWorldOfOwnCubes(int separators)
{
    OsgWorld world;
    const int side = worldSide(separators);
    for (int i = 0; i < separators; ++i) {
        const OwnCube own(i);
        osg::ref_ptr<osg::Vec3Array> points(new osg::Vec3Array);
        osg::ref_ptr<osg::Vec3Array> normals(new osg::Vec3Array);
        osg::ref_ptr<osg::DrawElementsUShort> index(new osg::DrawElementsUShort(GL_TRIANGLES));
        // Each face has corners of its own, as it has a normal of its own.
        for (int corner = 0; corner < 36; corner += 3) {
            osg::Vec3 face[3];
            for (int k = 0; k < 3; ++k) {
                const SbVec3f& at = own.corners[OwnCube::Index[corner + k]];
                face[k].set(at[0], at[1], at[2]);
            }
            osg::Vec3 normal = (face[1] - face[0]) ^ (face[2] - face[0]);
            normal.normalize();
            for (const osg::Vec3& at : face) {
                index->push_back(static_cast<GLushort>(points->size()));
                points->push_back(at);
                normals->push_back(normal);
            }
        }
        osg::ref_ptr<osg::Geometry> cube(new osg::Geometry);
        cube->setVertexArray(points);
        cube->setNormalArray(normals, osg::Array::BIND_PER_VERTEX);
        cube->addPrimitiveSet(index);
        cube->setUseDisplayList(false);
        cube->setUseVertexBufferObjects(true);
        osg::ref_ptr<osg::Material> material(new osg::Material);
        const SbColor color = ownColor(i);
        material->setDiffuse(osg::Material::FRONT_AND_BACK, {color[0], color[1], color[2], 1});
        cube->getOrCreateStateSet()->setAttribute(material);
        const SbVec3f place = worldPlace(i, side);
        world.last = new osg::MatrixTransform(osg::Matrix::translate(place[0], place[1], place[2]));
        world.last->addChild(cube);
        world.root->addChild(world.last);
    }
    return world;
}

// A viewer that draws into a picture, with what shows all of a world.
class OsgView
{
public:
    void show(OsgWorld& world)
    {
        world.root->getOrCreateStateSet()->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
        const osg::BoundingSphere sphere = world.root->getBound();
        const double distance = sphere.radius() * 3;
        m_viewer.setSceneData(world.root);
        m_viewer.getCamera()->setProjectionMatrixAsPerspective(45, 1, 0.1, 10 * distance);
        eye = sphere.center() + osg::Vec3d(0, 0, distance);
    }
    OsgView()
    {
        m_viewer.setThreadingModel(osgViewer::Viewer::SingleThreaded);
        m_viewer.setUpViewerAsEmbeddedInWindow(0, 0, PictureSize, PictureSize);
        m_viewer.getCamera()->setClearColor({0, 0, 0, 1});
        // It would leave out everything that is smaller than two pixels.
        m_viewer.getCamera()->setCullingMode(m_viewer.getCamera()->getCullingMode() &
                                             ~osg::CullSettings::SMALL_FEATURE_CULLING);
    }
    void draw()
    {
        m_viewer.getCamera()->setViewMatrixAsLookAt(eye, eye - osg::Vec3d(0, 0, 1), {0, 1, 0});
        m_viewer.frame();
        glReadPixels(0, 0, PictureSize, PictureSize, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    }

    osg::Vec3d eye;
    std::vector<unsigned char> pixels = std::vector<unsigned char>(4 * PictureSize * PictureSize);

private:
    osgViewer::Viewer m_viewer;
};

void osgFirstPicture(benchmark::State& state, Cubes cubes)
{
    const auto separators = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        {
            const bench::EglContext context;
            OsgWorld world =
                cubes == Cubes::Shared ? makeOsgWorld(separators) : makeOsgWorldOfOwnCubes(separators);
            OsgWorld other = makeOsgWorld(1);
            OsgView view;
            view.show(other);
            view.draw();
            view.show(world);
            state.ResumeTiming();
            view.draw();
            state.PauseTiming();
            if (!context || !hasPicture(view.pixels))
                state.SkipWithError("Nothing was drawn.");
        }
        state.ResumeTiming();
    }
}

void osgFrame(benchmark::State& state, Before before, Drawing drawing, Cubes cubes = Cubes::Shared)
{
    const bench::EglContext context;
    if (!context) {
        state.SkipWithError("There is no OpenGL here.");
        return;
    }
    const auto separators = static_cast<int>(state.range(0));
    OsgWorld world = cubes == Cubes::Shared ? makeOsgWorld(separators) : makeOsgWorldOfOwnCubes(separators);
    OsgView view;
    view.show(world);
    view.draw();
    const bool sawSomething = hasPicture(view.pixels);
    osgDrawCalls = 0;
    view.draw();
    const bool calledEach = osgDrawCalls == state.range(0);
    const bench::WithoutDrawing without(drawing);
    float x = 0;
    for (auto _ : state) {
        x = 0.5F - x;
        if (before == Before::OneField)
            world.last->setMatrix(osg::Matrix::translate(x, 0, 0));
        if (before == Before::EyeMoves)
            view.eye[0] += 0.1 * (x - 0.25);
        view.draw();
    }
    if (!sawSomething || !calledEach)
        state.SkipWithError("Not everything was drawn.");
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

void hundredThousand(benchmark::internal::Benchmark* each)
{
    each->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
}

} // namespace

BENCHMARK(boxAfresh)->Apply(sizes);
BENCHMARK(osgBoxAfresh)->Apply(sizes);
BENCHMARK(boxAfterOneChange)->Apply(sizes);
BENCHMARK(osgBoxAfterOneChange)->Apply(sizes);
BENCHMARK(pick)->Apply(sizes);
BENCHMARK(osgPick)->Apply(sizes);
BENCHMARK_CAPTURE(frame, unchanged, Before::Nothing, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, unchanged, Before::Nothing, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneField, Before::OneField, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, oneField, Before::OneField, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, eye, Before::EyeMoves, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, eye, Before::EyeMoves, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, unchangedUndrawn, Before::Nothing, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, unchangedUndrawn, Before::Nothing, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneFieldUndrawn, Before::OneField, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, oneFieldUndrawn, Before::OneField, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, eyeUndrawn, Before::EyeMoves, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(osgFrame, eyeUndrawn, Before::EyeMoves, Drawing::LeftOut)->Apply(wallSizes);

BENCHMARK_CAPTURE(frame, ownCubes, Before::Nothing, Drawing::Done, Cubes::Own)->Apply(hundredThousand);
BENCHMARK_CAPTURE(osgFrame, ownCubes, Before::Nothing, Drawing::Done, Cubes::Own)->Apply(hundredThousand);
BENCHMARK_CAPTURE(firstPicture, ownCubes, Cubes::Own)->Apply(hundredThousand);
BENCHMARK_CAPTURE(osgFirstPicture, ownCubes, Cubes::Own)->Apply(hundredThousand);

int main(int argc, char** argv)
{
    const auto beside = [](const char* what, const std::string& osg, const std::string& ours) {
        return bench::Ratio{what, osg + "/100000", ours + "/100000", "aim: above 1"};
    };
    return bench::run(
        argc, argv,
        {beside("box of 100,000, computed again: OpenSceneGraph over ours", "osgBoxAfresh", "boxAfresh"),
         beside("box of 100,000, one change: OpenSceneGraph over ours", "osgBoxAfterOneChange",
                "boxAfterOneChange"),
         beside("picking in 100,000: OpenSceneGraph over ours", "osgPick", "pick"),
         beside("frame of 100,000, unchanged: OpenSceneGraph over ours", "osgFrame/unchanged",
                "frame/unchanged"),
         beside("frame of 100,000, one change: OpenSceneGraph over ours", "osgFrame/oneField",
                "frame/oneField"),
         beside("frame of 100,000, eye moved: OpenSceneGraph over ours", "osgFrame/eye", "frame/eye"),
         beside("traversal of 100,000, unchanged: OpenSceneGraph over ours", "osgFrame/unchangedUndrawn",
                "frame/unchangedUndrawn"),
         beside("traversal of 100,000, one change: OpenSceneGraph over ours", "osgFrame/oneFieldUndrawn",
                "frame/oneFieldUndrawn"),
         beside("traversal of 100,000, eye moved: OpenSceneGraph over ours", "osgFrame/eyeUndrawn",
                "frame/eyeUndrawn"),
         beside("frame of 100,000 different cubes: OpenSceneGraph over ours", "osgFrame/ownCubes",
                "frame/ownCubes"),
         beside("first picture of them: OpenSceneGraph over ours", "osgFirstPicture/ownCubes",
                "firstPicture/ownCubes")});
}
