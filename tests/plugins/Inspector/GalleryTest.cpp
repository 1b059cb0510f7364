// SPDX-License-Identifier: MIT
// The panel of every type of node, light and dark side by side, as docs/gallery.md shows it;
// SCOPIX_PICTURES=FOLDER keeps the pictures.
#include "InspectorSession.h"

#include <QAbstractScrollArea>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace
{

constexpr int Width = 320;
constexpr int Most = 900; // pixels of height

std::vector<SoType> nodeTypes()
{
    std::vector<SoType> types = SoType::getAllDerivedFrom(SoNode::getClassTypeId());
    types.erase(
        std::remove_if(types.begin(), types.end(), [](SoType type) { return !type.canCreateInstance(); }),
        types.end());
    return types;
}

class PanelGallery : public ::testing::Test
{
protected:
    PanelGallery() { session.host.window().resize(1000, Most + 100); }

    // As high as the rows need.
    QImage look(SoNode* node, Theme theme)
    {
        applyTheme(session.host.window(), theme);
        session.selectNode(node);
        QWidget* panel = session.panel();
        if (!panel)
            return {};
        int bottom = panel->findChild<QAbstractScrollArea*>("rowList")->y() + 40;
        for (auto* row : panel->findChildren<QWidget*>("row")) {
            if (row->isVisible())
                bottom = std::max(bottom, row->mapTo(panel, QPoint(0, row->height() + 8)).y());
        }
        return panel->grab(QRect(0, 0, panel->width(), std::min(bottom, panel->height()))).toImage();
    }
    static QImage sideBySide(const QImage& left, const QImage& right)
    {
        QImage both(left.width() + right.width(), std::max(left.height(), right.height()),
                    QImage::Format_RGB32);
        QPainter painter(&both);
        painter.fillRect(both.rect(), left.pixel(left.width() - 1, left.height() - 1));
        painter.drawImage(0, 0, left);
        painter.drawImage(left.width(), 0, right);
        return both;
    }

    InspectorSession session{Width};
};

} // namespace

TEST_F(PanelGallery, ShowsEveryTypeOfNodeOnBothPalettes)
{
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    QDir().mkpath(folder);
    for (const SoType type : nodeTypes()) {
        const QString name = QString::fromUtf8(type.getName().getString());
        SCOPED_TRACE(name.toStdString());
        const SoRef<SoNode> node(static_cast<SoNode*>(type.createInstance()));
        const QImage light = look(node.get(), Theme::Light);
        const QImage dark = look(node.get(), Theme::Dark);
        session.selectNode(nullptr);
        ASSERT_FALSE(light.isNull() || dark.isNull());
        EXPECT_EQ(light.size(), dark.size());
        EXPECT_GT(light.pixelColor(2, light.height() - 2).lightness(),
                  dark.pixelColor(2, dark.height() - 2).lightness());
        if (!folder.isEmpty()) {
            EXPECT_TRUE(sideBySide(light, dark).save(folder + '/' + name + ".png", nullptr, 0));
        }
    }
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(GalleryPage, HasThePictureOfEveryTypeOfNode)
{
    QFile page(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/gallery.md"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    for (const SoType type : nodeTypes()) {
        const QString picture = QStringLiteral("pictures/panels/%1.png").arg(type.getName().getString());
        EXPECT_TRUE(text.contains(picture)) << picture.toStdString();
        EXPECT_TRUE(QFile::exists(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/") + picture))
            << picture.toStdString();
    }
}
