// SPDX-License-Identifier: MIT
// Reads a scene, changes a field and measures: a user of the scene-graph library who has no window.
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <cstdio>

int main()
{
    std::string error;
    const SoRef<SoNode> scene =
        SoSceneFile::readText("#Xsg V1.0 utf8\nSeparator { Sphere @ball { radius: 2 } }\n", "scene", error);
    if (!scene) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    SoSearchAction search;
    search.setType(SoSphere::getClassTypeId());
    auto* sphere = dynamic_cast<SoSphere*>(search.find(scene.get()));
    if (!sphere)
        return 2;
    sphere->radius.setValue(3);
    SoBoundingBoxAction action;
    const float right = action.getBox(scene.get()).getMax()[0];
    std::printf("%g\n%s", double(right), SoSceneFile::writeText(scene.get()).c_str());
    return right == 3.0f ? 0 : 3;
}
