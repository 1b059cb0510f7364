// SPDX-License-Identifier: MIT
// The panel as people see it, light and dark, wide and narrow; SCOPIX_PICTURES=FOLDER keeps the pictures.
#include "plugins/Inspector/InspectorSession.h"

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

struct Look {
    Theme theme;
    int width;
};

class PanelLooks : public testing::TestWithParam<Look>
{
protected:
    void look(SoNode* node)
    {
        const SoRef<SoNode> keep(node);
        session.selectNode(node);
        ASSERT_TRUE(session.panel());
        EXPECT_NEAR(session.panel()->width(), GetParam().width, 40);
        const QImage picture = session.panel()->grab().toImage();
        const bool isDark = picture.pixelColor(picture.width() - 2, picture.height() - 2).lightness() < 128;
        EXPECT_EQ(isDark, GetParam().theme == Theme::Dark);
        for (auto* input : session.panel()->findChildren<QLineEdit*>()) {
            if (!input->isVisible())
                continue;
            EXPECT_GT(input->width(), input->fontMetrics().horizontalAdvance("0.00"))
                << qPrintable(input->accessibleName());
        }
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (!folder.isEmpty())
            picture.save(QStringLiteral("%1/panel-%2-%3-%4.png")
                             .arg(folder, node->getTypeId().getName().getString(),
                                  GetParam().theme == Theme::Dark ? "dark" : "light")
                             .arg(GetParam().width));
        session.selectNode(nullptr);
    }
    void SetUp() override { applyTheme(session.host.window(), GetParam().theme); }

    InspectorSession session{GetParam().width};
};

} // namespace

TEST_P(PanelLooks, NothingIsCut)
{
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(SbColor(0.1F, 0.376F, 0.565F));
    look(material);
    look(new SoTransform);
    look(new SoCube);
    look(new SoCone);
    look(new SoPerspectiveCamera);
    look(new SoSpotLight);
    look(new SoTexture2);
    look(new SoMatrixTransform);
}

INSTANTIATE_TEST_SUITE_P(All, PanelLooks,
                         testing::Values(Look{Theme::Light, 340}, Look{Theme::Dark, 340},
                                         Look{Theme::Light, 220}, Look{Theme::Dark, 220}));
