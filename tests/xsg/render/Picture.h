// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <array>

/// Helps tests to look at pictures of scenes.
///
/// A scene seen from z = 5, with the renderer that draws it.
class Picture : public testing::Test
{
protected:
    using Pixel = std::array<int, 3>;

    static SoOffscreenRenderer& renderer()
    {
        static SoOffscreenRenderer instance; // one context serves all tests
        return instance;
    }

    Picture()
    {
        camera->position.setValue(0, 0, 5);
        renderer().getRenderer().setBackground({0, 0, 1});
    }
    ~Picture() override
    {
        renderer().getRenderer().setHighlight(nullptr);
        renderer().getRenderer().setWireframe(false);
        renderer().getRenderer().setHeadlight(true);
        renderer().setSamples(4);
    }

    template <class Node>
    Node* add()
    {
        auto* node = new Node;
        root->addChild(node);
        return node;
    }

    SoMaterial* addMaterial(const SbColor& color)
    {
        auto* material = add<SoMaterial>();
        material->ambientColor.setValue(SbColor(0, 0, 0));
        material->diffuseColor.setValue(color);
        return material;
    }

    SoPixels draw(int width = 64, int height = 64)
    {
        SoPixels pixels;
        EXPECT_TRUE(renderer().render(root.get(), camera.get(), width, height, pixels))
            << renderer().getErrorText();
        return pixels;
    }

    /// By a renderer that has not seen the scene before.
    SoPixels drawAfresh()
    {
        SoOffscreenRenderer fresh;
        fresh.getRenderer().setBackground({0, 0, 1});
        SoPixels pixels;
        EXPECT_TRUE(fresh.render(root.get(), camera.get(), 64, 64, pixels)) << fresh.getErrorText();
        return pixels;
    }

    static Pixel at(const SoPixels& pixels, int x, int y)
    {
        const unsigned char* p = pixels.at(x, y);
        return {p[0], p[1], p[2]};
    }
    static Pixel center(const SoPixels& pixels) { return at(pixels, pixels.width / 2, pixels.height / 2); }
    static Pixel corner(const SoPixels& pixels) { return at(pixels, 0, 0); }

    static bool isNear(const Pixel& a, const Pixel& b, int tolerance = 6)
    {
        for (std::size_t i = 0; i < 3; ++i) {
            if (std::abs(a[i] - b[i]) > tolerance)
                return false;
        }
        return true;
    }

    static constexpr Pixel Background{0, 0, 255};
    SoRef<SoSeparator> root{new SoSeparator};
    SoRef<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
};

#define EXPECT_PIXEL(actual, expected)                                                                       \
    do {                                                                                                     \
        const auto a_ = (actual);                                                                            \
        const Pixel e_ = expected;                                                                           \
        EXPECT_TRUE(isNear(a_, e_)) << "is " << a_[0] << ' ' << a_[1] << ' ' << a_[2] << ", should be "      \
                                    << e_[0] << ' ' << e_[1] << ' ' << e_[2];                                \
    } while (false)
