// SPDX-License-Identifier: MIT
// OpenGL's errors arrive as SoGLError.
#include "Picture.h"

#include <xsg/errors/SoGLError.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <epoxy/gl.h>

#include <cstdlib>

namespace
{

class GlErrors : public Picture
{
protected:
    GlErrors()
    {
        SoGLError::setHandlerCallback(
            [](const SoError* error, void* self) {
                const auto* told = static_cast<const SoGLError*>(error);
                auto* errors = static_cast<GlErrors*>(self);
                errors->codes.push_back(told->getCode());
                errors->texts.emplace_back(told->getDebugString().getString());
            },
            this);
        // Draws as somebody would who does not know OpenGL.
        add<SoDrawingCallback>()->setCallback([this](const SoDrawingContext&) {
            for (int i = 0; i < mistakes; ++i)
                glEnable(0x1234);
        });
    }
    ~GlErrors() override
    {
        SoGLError::setHandlerCallback(SoError::defaultHandler, nullptr);
        unsetenv("XSG_GL_DEBUG");
    }
    SoPixels drawWith(const char* debug)
    {
        setenv("XSG_GL_DEBUG", debug, 1);
        SoOffscreenRenderer fresh;
        fresh.getRenderer().setBackground({0, 0, 1});
        SoPixels pixels;
        EXPECT_TRUE(fresh.render(root.get(), camera.get(), 32, 32, pixels));
        EXPECT_TRUE(fresh.render(root.get(), camera.get(), 48, 32, pixels)) << fresh.getErrorText();
        return pixels;
    }
    int mistakes = 1;
    std::vector<unsigned> codes;
    std::vector<std::string> texts;
};

} // namespace

TEST_F(GlErrors, AContextMadeForDebuggingNamesTheCall)
{
    EXPECT_PIXEL(center(drawWith("1")), Background);
    ASSERT_EQ(codes.size(), 2U); // one a frame
    EXPECT_EQ(codes[0], static_cast<unsigned>(GL_INVALID_ENUM));
    EXPECT_NE(texts[0].find("glEnable"), std::string::npos) << texts[0];
}

TEST_F(GlErrors, AnOrdinaryContextIsAskedOnceAFrame)
{
    mistakes = 100;
    drawWith("0");
    ASSERT_EQ(codes.size(), 2U);
    EXPECT_EQ(codes[0], static_cast<unsigned>(GL_INVALID_ENUM));
    EXPECT_NE(texts[0].find("SoRenderer"), std::string::npos) << texts[0];
    EXPECT_EQ(texts[0].find("glEnable"), std::string::npos) << texts[0];
}

TEST_F(GlErrors, LimitsTheReportsOfAFrame)
{
    mistakes = 1000;
    drawWith("1");
    EXPECT_EQ(codes.size(), 16U);
}

TEST_F(GlErrors, AFrameWithoutErrorsReportsNone)
{
    mistakes = 0;
    drawWith("1");
    drawWith("0");
    EXPECT_TRUE(codes.empty());
}

TEST_F(GlErrors, AnApplicationThatListensItselfIsLeftAlone)
{
    static int heard = 0;
    heard = 0;
    add<SoDrawingCallback>()->setCallback([](const SoDrawingContext&) {
        glDebugMessageCallback(
            [](GLenum, GLenum, GLuint, GLenum, GLsizei, const GLchar*, const void*) { ++heard; }, nullptr);
    });
    drawWith("1");
    EXPECT_EQ(heard, 1);         // the second frame's
    EXPECT_EQ(codes.size(), 2U); // the first frame's, and what asking found after the second
}

TEST_F(GlErrors, DebuggingIsAPreference)
{
    setenv("XSG_GL_DEBUG", "1", 1);
    EXPECT_TRUE(SoRenderer::wantsDebugContext());
    setenv("XSG_GL_DEBUG", "0", 1);
    EXPECT_FALSE(SoRenderer::wantsDebugContext());
}
