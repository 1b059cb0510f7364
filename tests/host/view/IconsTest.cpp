// SPDX-License-Identifier: MIT
#include "panels/FieldStateIcons.h"
#include "panels/NodeIcons.h"
#include "theme/SvgIcon.h"
#include "theme/Theme.h"

#include <gtest/gtest.h>

#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

constexpr int Grid = 16;

QStringList iconNames()
{
    QStringList names;
    for (const QString& file : QDir(":/scopix/icons").entryList({"*.svg"}))
        names += QFileInfo(file).completeBaseName();
    return names;
}

// As a view paints it on a screen of this pixel density.
QImage painted(const QIcon& icon, int density)
{
    QImage image(Grid * density, Grid * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, Grid, Grid));
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

// How many pixels lie on the blurred edge of something.
int softPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) != qAlpha(image.pixel(x - 1, y)) ? 1 : 0;
    }
    return count;
}

// Rectangles on the grid, which look the same when their pixels are enlarged.
bool hasWholePixelsOnly(const QString& name)
{
    return name == "node-level-of-detail" || name == "node-texture" || name == "action-statistics";
}

TEST(Icons, AreRenderedAtThePixelDensityOfTheScreen)
{
    ASSERT_GT(iconNames().size(), 30);
    for (const QString& name : iconNames()) {
        const QIcon icon = svgIcon(name, nullptr);
        for (const int density : {2, 3}) {
            const QImage dense = painted(icon, density);
            const QImage enlarged =
                painted(icon, 1).scaled(dense.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LT(softPixels(dense), softPixels(enlarged)) << name.toStdString() << " at " << density;
            EXPECT_EQ(dense == painted(icon, 1).scaled(dense.size()), hasWholePixelsOnly(name))
                << name.toStdString();
            const QImage asked = icon.pixmap(Grid * density).toImage();
            EXPECT_EQ(asked.size(), dense.size());
            EXPECT_EQ(asked.convertToFormat(dense.format()), dense) << name.toStdString();
        }
    }
}

TEST(Icons, FollowThePaletteOfTheirSurface)
{
    QWidget surface;
    const QIcon icon = svgIcon("node-group", &surface);
    surface.setPalette(themePalette(Theme::Light));
    const QColor onLight = painted(icon, 1).pixelColor(4, 4);
    surface.setPalette(themePalette(Theme::Dark));
    const QColor onDark = painted(icon, 1).pixelColor(4, 4);
    EXPECT_GT(onDark.lightness(), onLight.lightness() + 20);
}

// A colour that the theme does not know would stay as it is.
TEST(Icons, HaveNoColorsButThoseOfTheTheme)
{
    QWidget surface;
    QPalette palette;
    palette.setColor(QPalette::HighlightedText, Qt::red);
    surface.setPalette(palette);
    for (const QString& name : iconNames()) {
        if (name == "color-swatch" || name == "scopix") // the program has colours of its own
            continue;
        const QImage image = svgIcon(name, &surface)
                                 .pixmap(Grid, QIcon::Selected)
                                 .toImage()
                                 .convertToFormat(QImage::Format_ARGB32);
        int seen = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() < 128)
                    continue;
                ++seen;
                EXPECT_EQ(image.pixelColor(x, y).rgb(), QColor(Qt::red).rgb()) << name.toStdString();
            }
        }
        EXPECT_GT(seen, 4) << name.toStdString();
    }
}

TEST(Icons, AreThereForEveryTypeOfNode)
{
    const auto types = SoType::getAllDerivedFrom(SoNode::getClassTypeId());
    EXPECT_GT(types.size(), 30U);
    for (const SoType type : types)
        EXPECT_FALSE(nodeIcon(type, nullptr).isNull()) << type.getName().getString();
    const auto picture = [](const char* type) {
        return painted(nodeIcon(SoType::fromName(type), nullptr), 1);
    };
    EXPECT_NE(picture("Group"), picture("Separator"));
    EXPECT_EQ(picture("PointLight"), picture("SpotLight")) << "by the type that both derive from";
}

TEST(Icons, AreThereForEveryStateOfAField)
{
    const SoRef<SoMaterial> material(new SoMaterial);
    std::vector<QImage> images;
    const auto add = [&] { images.push_back(painted(fieldStateIcon(material->transparency, nullptr), 1)); };
    add();
    material->transparency.setValue(0.5F);
    add();
    material->transparency.connectFrom(&material->shininess);
    add();
    material->transparency.setIgnored(true);
    add();
    for (std::size_t i = 0; i < images.size(); ++i) {
        EXPECT_GT(softPixels(images[i]), 0);
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(images[i], images[j]);
    }
}

TEST(Icons, OfAnUnknownNameAreNull)
{
    EXPECT_TRUE(svgIcon("no-such-icon", nullptr).isNull());
}

} // namespace
