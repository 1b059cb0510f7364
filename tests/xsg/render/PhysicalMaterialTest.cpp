// SPDX-License-Identifier: MIT
// Physically based surfaces beside the formulas of glTF 2.0, appendix B, computed here without OpenGL.
#include "Picture.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoSecondTextureCoordinates.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/EnvironmentTable.h>
#include <xsg/render/Tangents.h>

#include <cmath>

namespace
{

constexpr double Pi = 3.14159265358979323846;

struct Vec {
    double x = 0;
    double y = 0;
    double z = 0;
};
Vec operator+(const Vec& a, const Vec& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vec operator*(const Vec& a, double f)
{
    return {a.x * f, a.y * f, a.z * f};
}
double dot(const Vec& a, const Vec& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec normalized(const Vec& a)
{
    return a * (1 / std::sqrt(dot(a, a)));
}
Vec mix(const Vec& a, const Vec& b, double share)
{
    return a * (1 - share) + b * share;
}

struct Surface {
    Vec base{1, 1, 1};
    double metallic = 0;
    double roughness = 1;
    double coat = 0;
    double coatRoughness = 0;
};

// Light that comes back to the eye of what falls on a surface at right angles, times the cosine.
class Reference
{
public:
    Reference(const Vec& normal, const Vec& toLight, const Vec& toEye)
        : m_n(normal)
        , m_l(toLight)
        , m_v(toEye)
        , m_h(normalized(toLight + toEye))
    {
    }

    Vec shade(const Surface& surface) const
    {
        if (dot(m_n, m_l) <= 0 || dot(m_n, m_v) <= 0)
            return {};
        const double shine = specular(surface.roughness);
        const Vec white{1, 1, 1};
        const Vec dielectric = mix(surface.base * (1 / Pi), white * shine, fresnel(0.04));
        const Vec metal = (surface.base + (white + surface.base * -1) * grazing(dot(m_v, m_h))) * shine;
        const Vec below = mix(dielectric, metal, surface.metallic);
        const double layer = surface.coat * (0.04 + 0.96 * grazing(dot(m_n, m_v)));
        return mix(below, white * specular(surface.coatRoughness), layer) * dot(m_n, m_l);
    }

private:
    static double grazing(double cosine) { return std::pow(1 - std::abs(cosine), 5); }
    double fresnel(double atNormal) const { return atNormal + (1 - atNormal) * grazing(dot(m_v, m_h)); }
    double specular(double roughness) const
    {
        const double alpha = std::max(roughness * roughness, 1e-4);
        const double square = alpha * alpha;
        const double nh = dot(m_n, m_h);
        const double d = square / (Pi * std::pow(nh * nh * (square - 1) + 1, 2));
        const auto smith = [&](double cosine) {
            return 1 / (cosine + std::sqrt(square + (1 - square) * cosine * cosine));
        };
        return d * smith(dot(m_n, m_l)) * smith(dot(m_n, m_v));
    }

    Vec m_n;
    Vec m_l;
    Vec m_v;
    Vec m_h;
};

double toSrgb(double light)
{
    const double c = std::clamp(light, 0.0, 1.0);
    return 255 * (c <= 0.0031308 ? 12.92 * c : 1.055 * std::pow(c, 1 / 2.4) - 0.055);
}

double fromSrgb(double number)
{
    const double c = number / 255;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

class PhysicalMaterial : public Picture
{
protected:
    using Use = SoMaterialTexture::Use;

    PhysicalMaterial()
    {
        renderer().setSamples(1);
        renderer().getRenderer().setBackground({0, 0, 0});
        renderer().getRenderer().setHeadlight(false);
        renderer().getRenderer().setToneMapping(SoRenderer::ToneMapping::None);
    }
    ~PhysicalMaterial() override
    {
        renderer().getRenderer().setToneMapping(SoRenderer::ToneMapping::Neutral);
    }

    SoPhysicalMaterial* addSurface(float metallic, float roughness, const SbColor& base = {1, 1, 1})
    {
        auto* material = add<SoPhysicalMaterial>();
        material->baseColor.setValues({base});
        material->metallic.setValue(metallic);
        material->roughness.setValue(roughness);
        return material;
    }
    SoEnvironmentLight* addSurroundings(float brightness)
    {
        auto* light = add<SoEnvironmentLight>();
        for (SoSFColor* color : {&light->skyColor, &light->horizonColor, &light->groundColor})
            color->setValue(SbColor(brightness, brightness, brightness));
        return light;
    }
    SoMaterialTexture* addPicture(Use use, const std::vector<unsigned char>& bytes, int components = 3)
    {
        auto* picture = add<SoMaterialTexture>();
        picture->use.setValue(use);
        const int count = static_cast<int>(bytes.size()) / components;
        picture->image.setValue(count, 1, components, bytes.data());
        return picture;
    }
    void remove(const SoNode* child)
    {
        for (int i = root->getNumChildren(); i > 0; --i) {
            if (root->getChild(i - 1) == child)
                root->removeChild(i - 1);
        }
    }
    static Pixel grey(double number)
    {
        const int n = static_cast<int>(std::lround(number));
        return {n, n, n};
    }

    // The mean difference of the pixels on a ball between OpenGL's picture and the formulas.
    double compareBall(const Surface& surface)
    {
        const Vec toLight = normalized({1, 2, 3});
        constexpr int Size = 96;
        const SoPixels pixels = draw(Size, Size);
        const double half = std::tan(static_cast<double>(camera->heightAngle.getValue()) / 2);
        double sum = 0;
        int count = 0;
        for (int y = 0; y < Size; ++y) {
            for (int x = 0; x < Size; ++x) {
                const Vec way =
                    normalized({(2.0 * x + 1 - Size) / Size * half, (Size - 2.0 * y - 1) / Size * half, -1});
                const Vec eye{0, 0, 5};
                const double b = dot(eye, way);
                const double inside = b * b - (25 - 1);
                if (inside < 0.03) // the ball is a polyhedron: its outline is not to be compared
                    continue;
                const Vec n = eye + way * (-b - std::sqrt(inside));
                const Vec light = Reference(n, toLight, way * -1).shade(surface) * Pi;
                const Pixel is = at(pixels, x, y);
                sum += (std::abs(is[0] - toSrgb(light.x)) + std::abs(is[1] - toSrgb(light.y)) +
                        std::abs(is[2] - toSrgb(light.z))) /
                       3;
                ++count;
            }
        }
        EXPECT_GT(count, 1000);
        return sum / count;
    }
    SoPhysicalMaterial* addLitBall()
    {
        auto* light = add<SoDirectionalLight>();
        light->direction.setValue(SbVec3f(-1, -2, -3));
        light->intensity.setValue(static_cast<float>(Pi));
        add<SoComplexity>()->value.setValue(1);
        auto* material = add<SoPhysicalMaterial>();
        add<SoSphere>();
        return material;
    }
};

TEST_F(PhysicalMaterial, LooksAsTheFormulasSay)
{
    SoPhysicalMaterial* const material = addLitBall();
    for (const float metallic : {0.0F, 0.25F, 0.5F, 0.75F, 1.0F}) {
        for (const float roughness : {0.0F, 0.2F, 0.4F, 0.6F, 0.8F, 1.0F}) {
            Surface surface;
            surface.base = {0.9, 0.4, 0.1};
            surface.metallic = static_cast<double>(metallic);
            surface.roughness = static_cast<double>(roughness);
            material->baseColor.setValues({{0.9F, 0.4F, 0.1F}});
            material->metallic.setValue(metallic);
            material->roughness.setValue(roughness);
            EXPECT_LT(compareBall(surface), 2) << "metallic " << metallic << ", roughness " << roughness;
        }
    }
}

TEST_F(PhysicalMaterial, HasAClearCoatAsTheFormulasSay)
{
    SoPhysicalMaterial* const material = addLitBall();
    for (const float roughness : {0.2F, 0.5F}) {
        Surface surface;
        surface.base = {0.2, 0.3, 0.8};
        surface.coat = 0.8;
        surface.coatRoughness = static_cast<double>(roughness);
        material->baseColor.setValues({{0.2F, 0.3F, 0.8F}});
        material->roughness.setValue(1);
        material->clearCoat.setValue(0.8F);
        material->clearCoatRoughness.setValue(roughness);
        EXPECT_LT(compareBall(surface), 2) << roughness;
        material->clearCoat.setValue(0);
        EXPECT_GT(compareBall(surface), 2) << "the coat is seen";
    }
}

TEST_F(PhysicalMaterial, ReturnsTheLightOfEvenSurroundings)
{
    addSurroundings(0.5F);
    SoPhysicalMaterial* const material = addSurface(1, 0);
    add<SoSphere>();
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.5))); // a white mirror
    material->metallic.setValue(0);
    material->roughness.setValue(1);
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.5))); // white paper
}

TEST_F(PhysicalMaterial, MirrorsTheSkyAboveAndTheGroundBelow)
{
    auto* light = add<SoEnvironmentLight>();
    light->skyColor.setValue({0, 0, 1});
    light->horizonColor.setValue({0, 1, 0});
    light->groundColor.setValue({1, 0, 0});
    addSurface(1, 0);
    auto* turn = add<SoTransform>();
    add<SoCube>();
    EXPECT_TRUE(isNear(center(draw()), {0, 255, 0}, 20));
    // Tilted by 45 degrees, the front mirrors what is above.
    turn->rotation.setValue(SbRotation({1, 0, 0}, static_cast<float>(-Pi / 4)));
    EXPECT_PIXEL(at(draw(), 32, 28), (Pixel{0, 0, 255}));
    turn->rotation.setValue(SbRotation({1, 0, 0}, static_cast<float>(Pi / 4)));
    EXPECT_PIXEL(at(draw(), 32, 36), (Pixel{255, 0, 0}));
    light->on.setValue(false);
    EXPECT_PIXEL(center(draw()), (Pixel{0, 0, 0}));
}

TEST(EnvironmentTable, KeepsTheSumAndBlursWithRoughness)
{
    const xsg::EnvironmentTable& table = xsg::getEnvironmentTable();
    for (const SbVec3f& parts : table.parts)
        EXPECT_NEAR(parts[0] + parts[1] + parts[2], 1, 1e-4);
    const auto sky = [&](int row) {
        return table.parts[static_cast<std::size_t>(row + 1) * xsg::EnvironmentTable::Columns - 1][0];
    };
    EXPECT_NEAR(sky(0), 1, 1e-4);
    for (int row = 1; row < xsg::EnvironmentTable::RoughRows; ++row)
        EXPECT_LE(sky(row), sky(row - 1) + 1e-5F);
    EXPECT_LT(sky(xsg::EnvironmentTable::RoughRows - 1), 0.9F);
}

TEST_F(PhysicalMaterial, DecodesPicturesOfColoursAndNoOthers)
{
    SoPhysicalMaterial* const material = addSurface(0, 1);
    material->emissiveColor.setValue({1, 1, 1});
    SoMaterialTexture* const emissive = addPicture(Use::Emissive, {128, 128, 128});
    add<SoCube>();
    EXPECT_PIXEL(center(draw()), grey(128));
    material->emissiveStrength.setValue(0.5F);
    EXPECT_PIXEL(center(draw()), grey(toSrgb(fromSrgb(128) / 2)));
    const unsigned char one = 128;
    emissive->image.setValue(1, 1, 1, &one); // grey
    EXPECT_PIXEL(center(draw()), grey(toSrgb(fromSrgb(128) / 2)));
    emissive->use.setValue(Use::Occlusion);
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.5))); // has nothing to do with what glows
}

TEST_F(PhysicalMaterial, MultipliesItsNumbersWithPictures)
{
    addSurroundings(0.5F);
    SoPhysicalMaterial* const material = addSurface(1, 0, {1, 0.5F, 1});
    auto* texture = add<SoTexture2>();
    const unsigned char red[] = {255, 255, 0};
    texture->image.setValue(1, 1, 3, red);
    add<SoCube>();
    EXPECT_TRUE(isNear(center(draw()), {188, 137, 0}, 20));
    remove(texture);
    material->baseColor.setValues({{1, 1, 1}});
    const SoRef<SoMaterialTexture> open(addPicture(Use::Occlusion, {51, 0, 0}));
    remove(open.get());
    root->insertChild(open.get(), 1);
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.1)));
    material->occlusionStrength.setValue(0.5F);
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.3)));
}

TEST_F(PhysicalMaterial, TakesMetalFromBlueAndRoughnessFromGreen)
{
    auto* light = add<SoEnvironmentLight>();
    light->skyColor.setValue({0, 0, 0});
    light->horizonColor.setValue({1, 1, 1});
    light->groundColor.setValue({0, 0, 0});
    SoPhysicalMaterial* const material = addSurface(1, 1, {0, 1, 0});
    SoMaterialTexture* const both = addPicture(Use::MetallicRoughness, {255, 0, 255});
    add<SoCube>();
    const Pixel mirror = center(draw());
    EXPECT_TRUE(isNear(mirror, {0, 255, 0}, 20));
    const unsigned char rough[] = {255, 255, 255};
    both->image.setValue(1, 1, 3, rough);
    const Pixel blurred = center(draw());
    EXPECT_LT(blurred[1], mirror[1] - 10);
    remove(both);
    EXPECT_PIXEL(center(draw()), blurred);
    material->roughness.setValue(0);
    EXPECT_PIXEL(center(draw()), mirror);
}

// A square towards the eye, its texture coordinates turned by quarters.
class OnASquare : public PhysicalMaterial
{
protected:
    void addSquare(int quarters, bool isMirrored = false)
    {
        auto* points = add<SoPoints>();
        points->points.setValues({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}});
        add<SoNormals>()->vectors.setValues(std::vector<SbVec3f>(4, {0, 0, 1}));
        const SbVec2f corners[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
        std::vector<SbVec2f> places;
        for (int i = 0; i < 4; ++i) {
            const SbVec2f corner = corners[(i + quarters) % 4];
            places.emplace_back(isMirrored ? 1 - corner[0] : corner[0], corner[1]);
        }
        add<SoTextureCoordinates>()->points.setValues(places);
        add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2, 0, 2, 3});
    }
};

TEST_F(OnASquare, BendsNormalsAlongTheCoordinates)
{
    // In the picture to the right, wherever that is on the square: the light from there is met.
    for (const bool isMirrored : {false, true}) {
        for (int quarters = 0; quarters < 4; ++quarters) {
            root->removeAllChildren();
            auto* light = add<SoDirectionalLight>();
            light->intensity.setValue(static_cast<float>(Pi));
            SoPhysicalMaterial* const material = addSurface(0, 1);
            addPicture(Use::Normal, {255, 128, 128});
            addSquare(quarters, isMirrored);
            const SbVec3f ways[] = {{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}};
            SbVec3f right = ways[quarters];
            if (isMirrored)
                right = right * -1.0F;
            light->direction.setValue((right + SbVec3f(0, 0, 0.2F)) * -1.0F);
            EXPECT_GT(center(draw())[0], 200) << quarters << isMirrored;
            light->direction.setValue((right * -1.0F + SbVec3f(0, 0, 0.2F)) * -1.0F);
            EXPECT_LT(center(draw())[0], 30) << quarters << isMirrored;
            material->normalScale.setValue(0);
            light->direction.setValue(SbVec3f(0, 0, -1));
            EXPECT_GT(center(draw())[0], 240) << quarters << isMirrored;
        }
    }
}

TEST_F(OnASquare, BendsNormalsOfMirroredShapesTheSameWay)
{
    auto* light = add<SoDirectionalLight>();
    light->intensity.setValue(static_cast<float>(Pi));
    addSurface(0, 1);
    add<SoTransform>()->scaleFactor.setValue(SbVec3f(1, -1, 1));
    addPicture(Use::Normal, {255, 128, 128});
    addSquare(0);
    light->direction.setValue(SbVec3f(-1, 0, -0.2F));
    EXPECT_GT(center(draw())[0], 200);
}

TEST_F(OnASquare, TakesTheSecondCoordinatesAndItsOwnTransform)
{
    addSurface(0, 1)->emissiveColor.setValue({1, 1, 1});
    SoMaterialTexture* const picture = addPicture(Use::Emissive, {255, 0, 0, 0, 255, 0});
    picture->wrapS.setValue(SoTexture2::Clamp);
    add<SoSecondTextureCoordinates>()->points.setValues(std::vector<SbVec2f>(4, {0.9F, 0.5F}));
    addSquare(0);
    EXPECT_PIXEL(at(draw(), 22, 32), (Pixel{255, 0, 0}));
    EXPECT_PIXEL(at(draw(), 42, 32), (Pixel{0, 255, 0}));
    picture->coordinates.setValue(SoMaterialTexture::Second);
    EXPECT_PIXEL(at(draw(), 22, 32), (Pixel{0, 255, 0}));
    picture->coordinates.setValue(SoMaterialTexture::First);
    picture->translation.setValue(SbVec2f(1, 0));
    EXPECT_PIXEL(at(draw(), 22, 32), (Pixel{0, 255, 0}));
    picture->translation.setValue(SbVec2f(0, 0));
    picture->scaleFactor.setValue(SbVec2f(0.2F, 1));
    EXPECT_PIXEL(at(draw(), 42, 32), (Pixel{255, 0, 0}));
}

TEST_F(OnASquare, LeavesOutMixesOrCoversAsTheModeSays)
{
    SoPhysicalMaterial* const material = addSurface(0, 1);
    material->baseColor.setValues({{0, 0, 0}});
    material->emissiveColor.setValue({1, 0, 0});
    renderer().getRenderer().setBackground({0, 0, 1});
    addPicture(Use::BaseColor, {255, 255, 255, 102}, 4);
    addSquare(0);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
    material->alphaMode.setValue(SoPhysicalMaterial::Mask);
    EXPECT_PIXEL(center(draw()), (Pixel{0, 0, 255}));
    material->alphaCutoff.setValue(0.3F);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
    material->alphaMode.setValue(SoPhysicalMaterial::Blend);
    EXPECT_PIXEL(center(draw()), (Pixel{102, 0, 153}));
    material->opacity.setValue(0.5F);
    EXPECT_PIXEL(center(draw()), (Pixel{51, 0, 204}));
}

TEST_F(PhysicalMaterial, IsReplacedByAnotherMaterialAndReplacesIt)
{
    add<SoDirectionalLight>();
    addMaterial({0, 1, 0});
    SoPhysicalMaterial* const physical = addSurface(0, 1);
    physical->emissiveColor.setValue({1, 0, 0});
    auto* cube = add<SoCube>();
    EXPECT_GT(center(draw())[0], 240);
    remove(cube);
    addMaterial({0, 1, 0});
    root->addChild(SoRef<SoCube>(new SoCube).get());
    EXPECT_PIXEL(center(draw()), (Pixel{0, 255, 0}));
}

TEST_F(PhysicalMaterial, IsMappedFromBrightLightAsIsChosen)
{
    SoPhysicalMaterial* const material = addSurface(0, 1);
    material->baseColor.setValues({{0, 0, 0}});
    material->emissiveColor.setValue({4, 1, 1});
    add<SoCube>();
    SoRenderer& drawing = renderer().getRenderer();
    EXPECT_PIXEL(center(draw()), (Pixel{255, 255, 255}));
    drawing.setToneMapping(SoRenderer::ToneMapping::Neutral);
    const Pixel neutral = center(draw());
    EXPECT_GT(neutral[0], neutral[1] + 20); // still a red
    drawing.setToneMapping(SoRenderer::ToneMapping::Filmic);
    EXPECT_NE(center(draw()), neutral);
    drawing.setToneMapping(SoRenderer::ToneMapping::Neutral);
    material->emissiveColor.setValue({0.5F, 0.5F, 0.5F});
    EXPECT_PIXEL(center(draw()), grey(toSrgb(0.46)));
}

TEST_F(PhysicalMaterial, IsSeenByTheHeadlight)
{
    renderer().getRenderer().setHeadlight(true);
    addSurface(0, 1, {0.5F, 0.5F, 0.5F});
    add<SoCube>();
    EXPECT_TRUE(isNear(center(draw()), grey(toSrgb(0.5)), 10));
    root->insertChild(SoRef<SoEnvironmentLight>(new SoEnvironmentLight).get(), 0);
    auto* light = static_cast<SoEnvironmentLight*>(root->getChild(0));
    light->intensity.setValue(0);
    EXPECT_PIXEL(center(draw()), (Pixel{0, 0, 0})); // the headlight steps back
}

TEST_F(PhysicalMaterial, PicturesThatGoAreFreed)
{
    addSurface(0, 1);
    SoMaterialTexture* const picture = addPicture(Use::Emissive, {255, 255, 255});
    add<SoCube>();
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().textureBytes, 3);
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().textureBytes, 0);
    SoRef<SoNode> kept(picture);
    remove(picture);
    draw();
    root->insertChild(picture, 0);
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().textureBytes, 3); // made again
}

TEST(Tangents, FollowTheFirstCoordinateAndStandOnTheNormal)
{
    SoGeometry g;
    g.points = {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}};
    g.normals.assign(3, SbVec3f(0.6F, 0, 0.8F));
    g.textureCoordinates = {{0, 0}, {0, 1}, {-1, 0}};
    g.index = {0, 1, 2};
    const std::vector<SbVec4f> tangents = xsg::computeTangents(g, g.textureCoordinates);
    ASSERT_EQ(tangents.size(), 3U);
    for (const SbVec4f& t : tangents) {
        EXPECT_NEAR(t[1], -1, 1e-5);
        EXPECT_EQ(t[3], 1);
    }
    g.textureCoordinates.assign(3, {0, 0}); // no direction at all
    const SbVec4f any = xsg::computeTangents(g, g.textureCoordinates).front();
    EXPECT_NEAR(SbVec3f(any[0], any[1], any[2]).length(), 1, 1e-5);
    EXPECT_NEAR(any[0] * 0.6F + any[2] * 0.8F, 0, 1e-5);
    EXPECT_TRUE(xsg::computeTangents(g, {}).empty());
}

} // namespace
