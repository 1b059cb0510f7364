// SPDX-License-Identifier: MIT
// Where a picture is looked at from.
#include <xsg/render/SoRendererImpl.h>

namespace
{

// From the whole picture to the part of it.
SbMatrix cropTo(const SoRenderer::Tile& tile, int width, int height)
{
    SbMatrix crop;
    const auto along = [&crop](int axis, int whole, int first, int size) {
        crop[axis][axis] = static_cast<float>(whole) / static_cast<float>(size);
        crop[3][axis] = static_cast<float>(whole - 2 * first - size) / static_cast<float>(size);
    };
    if (tile.wholeWidth > 0) {
        along(0, tile.wholeWidth, tile.left, width);
        along(1, tile.wholeHeight, tile.bottom, height);
    }
    return crop;
}

} // namespace

SbVec3f SoRenderer::Impl::eyeOf(const SoCamera& camera) const
{
    return m_list.cameraMatrix.multPoint(camera.position.getValue());
}

xsg::EyeView SoRenderer::Impl::lookThrough(const SoCamera* camera, int width, int height)
{
    const bool isWhole = tile.wholeWidth <= 0;
    const float aspect = static_cast<float>(isWhole ? width : tile.wholeWidth) /
                         static_cast<float>(isWhole ? height : tile.wholeHeight);
    if (!camera)
        camera = m_list.camera;
    if (!camera) {
        if (!m_ownCamera)
            m_ownCamera = SoRef<SoPerspectiveCamera>(new SoPerspectiveCamera);
        m_ownCamera->viewAll(m_list.box, aspect);
        camera = m_ownCamera.get();
    }
    xsg::EyeView eye;
    // The identity where the camera stands outside of the scene.
    const SbMatrix& toWorld = m_list.cameraMatrix;
    eye.view = toWorld.inverse().value_or(SbMatrix()) * camera->getViewMatrix();
    const SbMatrix projection = camera->getProjectionMatrix(aspect);
    eye.projection = isWhole ? projection : projection * cropTo(tile, width, height);
    eye.viewProjection = eye.view * eye.projection;
    const bool isParallel = projection[2][3] == 0;
    const SbVec3f place = isParallel ? toWorld.multDirection(camera->getDirection()).normalized() * -1.0F
                                     : toWorld.multPoint(camera->position.getValue());
    eye.eye = SbVec4f(place[0], place[1], place[2], isParallel ? 0.0F : 1.0F);
    SoLightSource light;
    light.direction = toWorld.multDirection(camera->getDirection()).normalized();
    m_headlights.assign(headlight && m_list.lights == 0 ? 1 : 0, light);
    return eye;
}
