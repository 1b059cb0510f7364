// SPDX-License-Identifier: MIT
// Pictures beside a scene are found wherever the program was started, and go along when the scene is saved
// elsewhere.
#include "SessionFiles.h"

#include "viewport/TextureImageLoader.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/render/TextureImages.h>

#include <QImage>

using namespace scopix;

namespace
{

class Pictures : public SessionFiles
{
protected:
    Pictures()
    {
        images.setReader(TextureImageLoader::read);
        QDir(folder.path()).mkpath("a/pictures");
        QDir(folder.path()).mkpath("b");
        paint("a/pictures/red.png", Qt::red);
        auto* root = new SoSeparator;
        texture = new SoTexture2;
        SoRef<SoSeparator> inner(new SoSeparator);
        inner->addChild(texture);
        root->addChild(inner.get());
        root->addChild(inner.get());
        document.begin(SoRef<SoNode>(root).get(), folder.filePath("a/scene.xsg"), "scene.xsg");
    }
    void paint(const char* name, const QColor& color) const
    {
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setPixelColor(0, 0, color);
        ASSERT_TRUE(image.save(folder.filePath(name)));
    }
    bool isRed()
    {
        const SoImageView picture = images.find(*texture);
        // The file's first row is the picture's last.
        return !picture.isEmpty() && picture.width == 3 && picture.height == 2 && picture.components == 3 &&
               picture.bytes[9] > 240 && picture.bytes[10] < 20 && picture.bytes[0] < 20;
    }
    std::string name() const { return texture->fileName.getValue().str(); }

    xsg::TextureImages images;
    SoTexture2* texture = nullptr;
};

TEST_F(Pictures, AreFoundBesideTheScene)
{
    texture->fileName.setValue("pictures/red.png");
    EXPECT_TRUE(isRed());
    texture->fileName.setValue(SbString(folder.filePath("a/pictures/red.png").toStdString()));
    EXPECT_TRUE(isRed()) << "by its whole path too";
    texture->fileName.setValue("red.png");
    EXPECT_FALSE(isRed());
}

TEST_F(Pictures, OfASceneThatIsReadAreFound)
{
    texture->fileName.setValue("pictures/red.png");
    ASSERT_EQ(document.save(folder.filePath("a/scene.xsg")), "");
    EXPECT_EQ(name(), "pictures/red.png");
    std::string error;
    const SoRef<SoNode> again = SoSceneFile::read(folder.filePath("a/scene.xsg").toStdString(), error);
    document.begin(again.get(), folder.filePath("a/scene.xsg"), "scene.xsg");
    texture = static_cast<SoTexture2*>(
        static_cast<SoSeparator*>(static_cast<SoSeparator*>(again.get())->getChild(0))->getChild(0));
    EXPECT_TRUE(isRed());
}

TEST_F(Pictures, AreFoundFromWhereTheSceneIsSaved)
{
    texture->fileName.setValue("pictures/red.png");
    services.select(&texture->fileName);
    SoSensorQueue::getInstance().process();
    ASSERT_EQ(document.save(folder.filePath("b/scene.xsg")), "");
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(name(), "../a/pictures/red.png");
    EXPECT_TRUE(contentOf(folder.filePath("b/scene.xsg")).contains("../a/pictures/red.png"));
    EXPECT_TRUE(isRed());
    EXPECT_FALSE(document.isModified()) << "what saving itself changes is saved";
}

TEST_F(Pictures, KeepNamesThatCannotBeFound)
{
    texture->fileName.setValue("pictures/none.png");
    ASSERT_EQ(document.save(folder.filePath("b/scene.xsg")), "");
    EXPECT_EQ(name(), "pictures/none.png");
    texture->fileName.setValue(SbString(folder.filePath("a/pictures/red.png").toStdString()));
    ASSERT_EQ(document.save(folder.filePath("a/scene.xsg")), "");
    EXPECT_EQ(name(), folder.filePath("a/pictures/red.png").toStdString());
}

TEST_F(Pictures, FallBackToTheImageWhenUnreadable)
{
    QFile bad(folder.filePath("a/bad.png"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("no picture");
    bad.close();
    const unsigned char grey[] = {7};
    texture->image.setValue(1, 1, 1, grey);
    texture->fileName.setValue("bad.png");
    const SoImageView picture = images.find(*texture);
    ASSERT_FALSE(picture.isEmpty());
    EXPECT_EQ(picture.width, 1);
}

} // namespace
