// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoUnknownNode.h>

TEST(FormerTypes, AFileWithANodeThatTheLibraryNoLongerHasLosesNothing)
{
    const std::string text = "#Xsg V1.0 utf8\n"
                             "Separator {\n"
                             "    FieldGallery \"every field\" {\n"
                             "        sfBitMask: LEFT | TOP\n"
                             "        sfImage: 2 1 3 0xff0000 0x00ff00 !ignored\n"
                             "        mfString: [ \"one\", \"two words\" ]\n"
                             "    }\n"
                             "}\n";
    ASSERT_TRUE(SoType::fromName("FieldGallery").isBad());
    std::string error;
    const SoRef<SoNode> scene = SoSceneFile::readText(text, "old.xsg", error);
    ASSERT_TRUE(scene) << error;
    const auto* node = dynamic_cast<const SoUnknownNode*>(scene->asGroup()->getChild(0));
    ASSERT_TRUE(node);
    EXPECT_EQ(node->getTypeName(), SbName("FieldGallery"));
    EXPECT_EQ(node->getFieldData()->getNumFields(), 3);
    EXPECT_EQ(SoSceneFile::writeText(scene.get()), text);
}
