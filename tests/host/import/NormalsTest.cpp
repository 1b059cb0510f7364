// SPDX-License-Identifier: MIT
// Models without normals get them by the angle between their faces.
#include "ModelFiles.h"

#include "reader/ModelReader.h"

#include <xsg/core/SoPreferences.h>

using namespace scopix;

namespace
{

// A roof of two faces that share an edge.
const char* const Roof = "v 0 0 0\nv 0 0 1\nv 1 %1 0\nv 1 %1 1\nv 2 0 0\nv 2 0 1\nf 1 2 4 3\nf 3 4 6 5\n";

class CreaseAngle : public testing::Test
{
protected:
    ~CreaseAngle() override { SoPreferences::setValue("XSG_CREASE_ANGLE", SbString()); }

    // Whether the ridge has one normal for both faces.
    bool isSmooth(double height) const
    {
        const QString path = files.write("roof.obj", QString::fromLatin1(Roof).arg(height).toLatin1());
        const ModelReadResult model = readModel(path);
        EXPECT_EQ(model.error, "");
        for (const SbVec3f& normal : model.data.meshes.at(0).normals) {
            if (std::abs(normal[0]) < 1e-3F)
                return true;
        }
        return false;
    }
    ModelFiles files;
};

} // namespace

TEST_F(CreaseAngle, IsThirtyFiveDegrees)
{
    EXPECT_TRUE(isSmooth(0.2)) << "an angle of 23 degrees";
    EXPECT_FALSE(isSmooth(0.5)) << "an angle of 53 degrees";
}

TEST_F(CreaseAngle, IsAPreference)
{
    SoPreferences::setValue("XSG_CREASE_ANGLE", "60");
    EXPECT_TRUE(isSmooth(0.5));
    SoPreferences::setValue("XSG_CREASE_ANGLE", "10");
    EXPECT_FALSE(isSmooth(0.2));
}
