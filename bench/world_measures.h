// SPDX-License-Identifier: MIT
// What the benchmarks of a world of separators measure of this library, shared by the one that looks at
// growth with size and the one that stands beside another library. The argument is the number of separators.
#pragma once

#include "WithoutDrawing.h"
#include "world_scene.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <benchmark/benchmark.h>

/// Of the pictures, in pixels a side: small, so that filling them is little of the work.
constexpr int PictureSize = 64;

inline void perSeparator(benchmark::State& state)
{
    state.counters["perSeparator"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// No box is remembered anywhere.
inline void boxAfresh(benchmark::State& state)
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

inline void boxAfterOneChange(benchmark::State& state)
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

inline void pick(benchmark::State& state)
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

/// Whether the cubes of a world are the same one, or have corners and materials of their own.
enum class Cubes { Shared, Own };

/// What happens before each frame that is measured.
enum class Before {
    Nothing,
    OneField,
    OneChild,   // is removed or added, in the middle
    OneLight,   // in one group of the world, is added or removed
    OneTexture, // the same
    EyeMoves,
    Opening, // the scene is new to the renderer: no list of what to draw, no buffer of it is there
};

inline SoNode* makeLightOrTexture(Before before)
{
    if (before == Before::OneLight)
        return new SoDirectionalLight;
    static constexpr unsigned char Grey[4] = {90, 130, 170, 210};
    auto* texture = new SoTexture2;
    texture->image.setValue(2, 2, 1, Grey);
    return texture;
}

/// Puts the node before the children of the group; null takes the first of them away.
inline void changeFirst(SoSeparator& group, SoNode* node)
{
    if (node)
        group.insertChild(node, 0);
    else
        group.removeChild(0);
}

inline void prepareFrame(Before before, SoSeparator& world, SoCamera& camera, float step)
{
    if (before == Before::OneField)
        lastTransform(world).translation.setValue(step, 0, 0);
    const int middle = world.getNumChildren() / 2;
    if (before == Before::OneChild && step > 0)
        world.removeChild(middle);
    else if (before == Before::OneChild)
        world.insertChild(makeWorldPart(middle, worldSide(world.getNumChildren() + 1)), middle);
    if (before == Before::OneLight || before == Before::OneTexture)
        changeFirst(*static_cast<SoSeparator*>(world.getChild(middle)),
                    step > 0 ? makeLightOrTexture(before) : nullptr);
    if (before == Before::EyeMoves)
        camera.pan(0.001F * (step - 0.25F), 0);
}

/// The first picture of a scene, by a renderer that has drawn another one before.
inline void firstPicture(benchmark::State& state, Cubes cubes)
{
    const auto separators = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        const auto world = cubes == Cubes::Shared ? makeWorld(separators) : makeWorldOfOwnCubes(separators);
        const SoRef<SoSeparator> other = makeWorld(1);
        const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
        camera->viewAll(SoBoundingBoxAction().getBox(world.get()), 1);
        SoPixels pixels;
        {
            SoOffscreenRenderer renderer;
            renderer.setSamples(1);
            renderer.render(other.get(), camera.get(), PictureSize, PictureSize, pixels);
            state.ResumeTiming();
            renderer.render(world.get(), camera.get(), PictureSize, PictureSize, pixels);
            state.PauseTiming();
        }
        if (!hasPicture(pixels.rgba))
            state.SkipWithError("Nothing was drawn.");
        state.ResumeTiming();
    }
}

/// A frame from the change to the picture in memory. Without drawing, OpenGL's draw calls return at once:
/// what remains is all the work up to them.
inline void frame(benchmark::State& state, Before before, Drawing drawing, Cubes cubes = Cubes::Shared)
{
    const auto separators = static_cast<int>(state.range(0));
    const auto world = cubes == Cubes::Shared ? makeWorld(separators) : makeWorldOfOwnCubes(separators);
    const SoRef<SoSeparator> nothing(new SoSeparator);
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->viewAll(SoBoundingBoxAction().getBox(world.get()), 1);
    SoOffscreenRenderer renderer;
    renderer.setSamples(1);
    SoPixels pixels;
    const auto draw = [&](SoSeparator* scene) {
        return renderer.render(scene, camera.get(), PictureSize, PictureSize, pixels);
    };
    if (!draw(world.get())) {
        state.SkipWithError(renderer.getErrorText().c_str());
        return;
    }
    const SoRenderer::Statistics& drawn = renderer.getRenderer().getStatistics();
    const bool sawAll = hasPicture(pixels.rgba) && drawn.shapes == state.range(0) && drawn.culled == 0;
    const bench::WithoutDrawing without(drawing);
    float step = 0;
    for (auto _ : state) {
        step = 0.5F - step;
        if (before == Before::Opening) {
            state.PauseTiming();
            draw(nothing.get());
            state.ResumeTiming();
        }
        prepareFrame(before, *world, *camera, step);
        draw(world.get());
    }
    if (!sawAll)
        state.SkipWithError("Not everything was drawn.");
    perSeparator(state);
}
