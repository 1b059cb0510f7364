// SPDX-License-Identifier: MIT
// Pictures of models, and how much memory they may take.
#include "ModelFiles.h"

#include "import/ModelImport.h"
#include "import/SceneBuilder.h"
#include "reader/ModelReader.h"

#include <support/Waiting.h>

#include <xsg/actions/SoSearchAction.h>
#include <xsg/core/SoPreferences.h>
#include <xsg/nodes/properties/SoTexture2.h>

using namespace scopix;

namespace
{

class ModelPictures : public testing::Test
{
protected:
    ~ModelPictures() override { SoPreferences::setValue("XSG_PICTURE_MEMORY", SbString()); }
    // The crate with another picture, of this many pixels a side.
    QString crateWith(int side) const
    {
        for (const char* name : {"crate.bin", "crate.gltf"})
            files.write(name, contentOf(shippedModel(name)));
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        image.save(files.path("crate.png"));
        return files.path("crate.gltf");
    }

    ModelFiles files;
};

TEST_F(ModelPictures, StayAsTheyAreWhereThereIsRoom)
{
    const ModelReadResult model = readModel(crateWith(700));
    ASSERT_EQ(model.data.pictures.size(), 1U);
    EXPECT_EQ(model.data.pictures.front().width, 700);
    EXPECT_TRUE(model.notes.empty());
}

TEST_F(ModelPictures, AreBroughtDownToWhatTheyMayTake)
{
    SoPreferences::setValue("XSG_PICTURE_MEMORY", "1");
    const ModelReadResult model = readModel(crateWith(700));
    ASSERT_EQ(model.data.pictures.size(), 1U);
    EXPECT_EQ(model.data.pictures.front().width, 350);
    EXPECT_EQ(model.data.pictures.front().height, 350);
    ASSERT_EQ(model.notes.size(), 1U);
    EXPECT_NE(model.notes.front().find("“crate.png” of 700 × 700 pixels is brought down to 350 × 350"),
              std::string::npos)
        << model.notes.front();
}

TEST_F(ModelPictures, OfAModelThatIsOpenedAreToldOfInOneLineEach)
{
    SoPreferences::setValue("XSG_PICTURE_MEMORY", "0");
    SoRef<SoSeparator> scene;
    ModelImport import(nullptr);
    QObject::connect(&import, &ModelImport::finished, [&](const SoRef<SoSeparator>& s) { scene = s; });
    import.start(crateWith(100));
    ASSERT_TRUE(waitFor([&] { return static_cast<bool>(scene); }));
    ASSERT_EQ(import.notes().size(), 1);
    EXPECT_TRUE(import.notes().front().contains("“crate.png” of 100 × 100 pixels is left out"))
        << qPrintable(import.notes().front());
    SoSearchAction search;
    search.setType(SoTexture2::getClassTypeId());
    EXPECT_FALSE(search.find(scene.get()));
}

} // namespace
