// SPDX-License-Identifier: MIT
// What a pixel of each kind of surface costs, drawn by a processor: one light, and a ball that fills the
// picture.
#include "Ratios.h"

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/registry/SoDB.h>
#include <xsg/render/SoOffscreenRenderer.h>

namespace
{

constexpr int Side = 256; // pixels

template <class Node>
Node* add(SoSeparator& scene)
{
    auto* node = new Node;
    scene.addChild(node);
    return node;
}

void addPicture(SoSeparator& scene, int use)
{
    constexpr int Texels = 64;
    std::vector<unsigned char> bytes;
    for (int i = 0; i < Texels * Texels * 3; ++i)
        bytes.push_back(static_cast<unsigned char>(100 + i % 97));
    auto* picture = add<SoMaterialTexture>(scene);
    picture->use.setValue(use);
    picture->image.setValue(Texels, Texels, 3, bytes.data());
}

void draw(benchmark::State& state, const SoRef<SoSeparator>& scene)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->position.setValue(0, 0, 1.6F); // within the ball's outline
    SoOffscreenRenderer renderer;
    renderer.setSamples(1);
    SoPixels pixels;
    bool isGood = renderer.render(scene.get(), camera.get(), Side, Side, pixels);
    for (auto _ : state)
        isGood = renderer.render(scene.get(), camera.get(), Side, Side, pixels) && isGood;
    if (!isGood)
        state.SkipWithError(renderer.getErrorText().c_str());
    state.counters["perPixel"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * Side * Side,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

SoRef<SoSeparator> litScene()
{
    SoRef<SoSeparator> scene(new SoSeparator);
    add<SoDirectionalLight>(*scene)->direction.setValue(SbVec3f(-1, -1, -1));
    return scene;
}

void empty(benchmark::State& state)
{
    const SoRef<SoSeparator> scene(new SoSeparator);
    draw(state, scene);
}

void plainMaterial(benchmark::State& state)
{
    const auto scene = litScene();
    add<SoMaterial>(*scene)->specularColor.setValue({0.5F, 0.5F, 0.5F});
    add<SoSphere>(*scene);
    draw(state, scene);
}

void physicalMaterial(benchmark::State& state)
{
    const auto scene = litScene();
    add<SoPhysicalMaterial>(*scene);
    add<SoSphere>(*scene);
    draw(state, scene);
}

void withEnvironment(benchmark::State& state)
{
    const auto scene = litScene();
    add<SoEnvironmentLight>(*scene);
    add<SoPhysicalMaterial>(*scene);
    add<SoSphere>(*scene);
    draw(state, scene);
}

void withClearCoat(benchmark::State& state)
{
    const auto scene = litScene();
    add<SoPhysicalMaterial>(*scene)->clearCoat.setValue(1);
    add<SoSphere>(*scene);
    draw(state, scene);
}

template <int Use>
void withPicture(benchmark::State& state)
{
    const auto scene = litScene();
    add<SoPhysicalMaterial>(*scene);
    addPicture(*scene, Use);
    add<SoSphere>(*scene);
    draw(state, scene);
}

BENCHMARK(empty)->MeasureProcessCPUTime();
BENCHMARK(plainMaterial)->MeasureProcessCPUTime();
BENCHMARK(physicalMaterial)->MeasureProcessCPUTime();
BENCHMARK(withEnvironment)->MeasureProcessCPUTime();
BENCHMARK(withClearCoat)->MeasureProcessCPUTime();
BENCHMARK_TEMPLATE(withPicture, SoMaterialTexture::BaseColor)
    ->Name("withBaseColorPicture")
    ->MeasureProcessCPUTime();
BENCHMARK_TEMPLATE(withPicture, SoMaterialTexture::MetallicRoughness)
    ->Name("withMetallicRoughnessPicture")
    ->MeasureProcessCPUTime();
BENCHMARK_TEMPLATE(withPicture, SoMaterialTexture::Normal)
    ->Name("withNormalPicture")
    ->MeasureProcessCPUTime();
BENCHMARK_TEMPLATE(withPicture, SoMaterialTexture::Emissive)
    ->Name("withEmissivePicture")
    ->MeasureProcessCPUTime();

} // namespace

int main(int argc, char** argv)
{
    SoDB::init();
    return bench::run(
        argc, argv,
        {{"a physical material beside a plain one", "physicalMaterial", "plainMaterial", "1.5 at most"},
         {"with surroundings", "withEnvironment", "physicalMaterial", ""},
         {"with a clear coat", "withClearCoat", "physicalMaterial", ""},
         {"with a picture of the base colour", "withBaseColorPicture", "physicalMaterial", ""},
         {"with a picture of metal and roughness", "withMetallicRoughnessPicture", "physicalMaterial", ""},
         {"with a picture of normals", "withNormalPicture", "physicalMaterial", ""},
         {"with a picture of what glows", "withEmissivePicture", "physicalMaterial", ""}});
}
