// SPDX-License-Identifier: MIT
// Every kind of node looks as it did: a small scene for each, beside this file, against a picture that people
// have looked at, which docs/nodes.md shows. SCOPIX_PICTURES names the folder that the pictures are made in
// again.
#include "DrawBar.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/registry/SoDB.h>
#include <xsg/render/SoOffscreenRenderer.h>

namespace
{

const QSize Small(160, 120);
const QSize Large(640, 400);
// Drivers may differ a little at edges, and by no more: so many steps of a channel make a pixel another one,
// and so many in a thousand pixels may be others.
constexpr int Tolerance = 12;
constexpr int OthersInThousand = 5;

// They stand for something else than a look.
const std::set<std::string> WithoutALook{"Info", "UnknownNode"};

SoOffscreenRenderer& renderer()
{
    static SoOffscreenRenderer instance; // one context serves all tests
    return instance;
}

QImage draw(SoNode* scene, const QSize& size)
{
    renderer().getRenderer().setBackground({0.16F, 0.18F, 0.22F});
    SoPixels pixels;
    EXPECT_TRUE(renderer().render(scene, nullptr, size.width(), size.height(), pixels))
        << renderer().getErrorText();
    const QImage shared(pixels.rgba.data(), pixels.width, pixels.height, QImage::Format_RGBX8888);
    return shared.convertToFormat(QImage::Format_RGB888);
}

int countOthers(const QImage& a, const QImage& b)
{
    int others = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            others += std::abs(one.red() - other.red()) > Tolerance ||
                              std::abs(one.green() - other.green()) > Tolerance ||
                              std::abs(one.blue() - other.blue()) > Tolerance
                          ? 1
                          : 0;
        }
    }
    return others;
}

// `drawn` is made the reference where that is asked for.
void expectReference(const QImage& drawn, const QString& name)
{
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    ASSERT_TRUE(folder.isEmpty() || drawn.save(folder + '/' + name));
    const QImage reference(SCOPIX_SOURCE_DIR "/docs/pictures/nodes/" + name);
    ASSERT_EQ(reference.size(), drawn.size()) << qPrintable(name);
    const int others = countOthers(drawn, reference);
    if (others * 1000 > OthersInThousand * drawn.width() * drawn.height()) {
        const QString out = QDir::temp().filePath(name);
        drawn.save(out);
        ADD_FAILURE() << others << " pixels differ; what was drawn is in " << qPrintable(out);
    }
}

std::vector<std::string> nodeTypes()
{
    SoDB::init();
    std::vector<std::string> names;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (type.canCreateInstance())
            names.push_back(type.getName().getString());
    }
    return names;
}

class NodeKind : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        std::string error;
        scene =
            SoSceneFile::read(SCOPIX_SOURCE_DIR "/tests/xsg/pictures/scenes/" + GetParam() + ".xsg", error);
        ASSERT_TRUE(scene) << error;
        SoSearchAction search;
        search.setType(SoType::fromName(SbName(GetParam().c_str())), false);
        SoNode* node = search.find(scene.get());
        ASSERT_TRUE(node) << "the scene has no " << GetParam();
        if (auto* callback = dynamic_cast<SoDrawingCallback*>(node))
            callback->setCallback(drawBar);
    }

    SoRef<SoNode> scene;
};

} // namespace

TEST_P(NodeKind, LooksAsItDid)
{
    expectReference(draw(scene.get(), Small), QString::fromStdString(GetParam()) + ".png");
}

TEST_P(NodeKind, IsShownOnItsPage)
{
    QFile page(SCOPIX_SOURCE_DIR "/docs/nodes.md");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString name = QString::fromStdString(GetParam());
    EXPECT_EQ(QString::fromUtf8(page.readAll()).contains("](pictures/nodes/" + name + ".png)"),
              WithoutALook.count(GetParam()) == 0);
}

INSTANTIATE_TEST_SUITE_P(All, NodeKind, testing::ValuesIn(nodeTypes()),
                         [](const auto& test) { return test.param; });

TEST(ShippedScene, LooksAsItDid)
{
    for (const char* name : {"showcase", "physical"}) {
        std::string error;
        const std::string path = std::string(SCOPIX_SOURCE_DIR "/data/scenes/") + name + ".xsg";
        const SoRef<SoNode> scene = SoSceneFile::read(path, error);
        ASSERT_TRUE(scene) << error;
        expectReference(draw(scene.get(), Large), QLatin1String(name) + ".png");
    }
}
