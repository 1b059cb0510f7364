// SPDX-License-Identifier: MIT
#include "OsgViewing.h"

#include <osg/ComputeBoundsVisitor>
#include <osgGA/CameraManipulator>
#include <osgUtil/IntersectionVisitor>
#include <osgUtil/LineSegmentIntersector>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace scopix::live
{

namespace
{

bool contains(const osg::Viewport* viewport, double x, double y)
{
    return viewport && x >= viewport->x() && y >= viewport->y() && x < viewport->x() + viewport->width() &&
           y < viewport->y() + viewport->height();
}

constexpr double degree = 3.14159265358979323846 / 180;

Camera cameraOf(const osg::Camera& camera)
{
    Camera result;
    const osg::Matrixd world = osg::Matrixd::inverse(camera.getViewMatrix());
    const osg::Vec3d position = world.getTrans();
    const osg::Quat rotation = world.getRotate();
    std::copy_n(position.ptr(), 3, result.position);
    for (int i = 0; i < 4; ++i)
        result.rotation[i] = rotation[i];
    double angle = 0;
    double aspect = 0;
    double near = 0;
    double far = 0;
    double left = 0;
    double right = 0;
    double bottom = 0;
    double top = 0;
    if (camera.getProjectionMatrixAsPerspective(angle, aspect, near, far))
        result.verticalAngle = angle * degree;
    else if (camera.getProjectionMatrixAsOrtho(left, right, bottom, top, near, far))
        result.height = top - bottom;
    return result;
}

bool isUsable(const Camera& camera)
{
    const auto finite = [](double d) { return std::isfinite(d); };
    return std::all_of(camera.position, camera.position + 3, finite) &&
           std::all_of(camera.rotation, camera.rotation + 4, finite);
}

void setAngle(osg::Camera& camera, double wanted)
{
    double angle = 0;
    double aspect = 0;
    double near = 0;
    double far = 0;
    const bool sensible = wanted > 0.001 && wanted < 179 * degree;
    if (sensible && camera.getProjectionMatrixAsPerspective(angle, aspect, near, far))
        camera.setProjectionMatrixAsPerspective(wanted / degree, aspect, near, far);
}

} // namespace

osg::BoundingBox worldBox(osg::Node& node)
{
    osg::ComputeBoundsVisitor visitor;
    node.accept(visitor);
    const osg::NodePathList paths = node.getParentalNodePaths();
    osg::BoundingBox box;
    if (paths.empty() || !visitor.getBoundingBox().valid())
        return box;
    // The visitor has applied the node's own matrix already.
    const osg::NodePath above(paths.front().begin(), std::prev(paths.front().end()));
    const osg::Matrixd matrix = osg::computeLocalToWorld(above);
    for (unsigned corner = 0; corner < 8; ++corner)
        box.expandBy(osg::Vec3d(visitor.getBoundingBox().corner(corner)) * matrix);
    return box;
}

OsgViewing::OsgViewing(OsgObjects& objects, OsgViewers& viewers)
    : m_objects(objects)
    , m_viewers(viewers)
{
}

osg::GraphicsContext* OsgViewing::window() const
{
    for (osg::Camera* camera : m_viewers.cameras())
        if (camera->getGraphicsContext() && camera->getGraphicsContext()->getTraits())
            return camera->getGraphicsContext();
    return nullptr;
}

std::vector<osg::Camera*> OsgViewing::camerasOfWindow() const
{
    std::vector<osg::Camera*> cameras;
    const osg::GraphicsContext* shown = window();
    for (osg::Camera* camera : m_viewers.cameras())
        if (shown && camera->getGraphicsContext() == shown && camera->getNodeMask() != 0 &&
            camera->getRenderer())
            cameras.push_back(camera);
    const auto order = [](const osg::Camera* a, const osg::Camera* b) {
        return std::make_pair(a->getRenderOrder(), a->getRenderOrderNum()) <
               std::make_pair(b->getRenderOrder(), b->getRenderOrderNum());
    };
    std::stable_sort(cameras.begin(), cameras.end(), order);
    return cameras;
}

osg::Camera* OsgViewing::lastCamera() const
{
    const std::vector<osg::Camera*> cameras = camerasOfWindow();
    return cameras.empty() ? nullptr : cameras.back();
}

osgViewer::View* OsgViewing::view() const
{
    const std::vector<osgViewer::View*> views = m_viewers.views();
    return views.empty() ? nullptr : views.front();
}

PickResult OsgViewing::pick(double x, double y)
{
    PickResult result;
    if (!window() || !m_viewers.waitForDrawing())
        return result;
    const double pixelX = x * window()->getTraits()->width;
    const double pixelY = (1 - y) * window()->getTraits()->height;
    std::vector<osg::Camera*> cameras = camerasOfWindow();
    std::reverse(cameras.begin(), cameras.end());
    for (osg::Camera* camera : cameras) {
        if (!contains(camera->getViewport(), pixelX, pixelY))
            continue;
        osg::ref_ptr<osgUtil::LineSegmentIntersector> line =
            new osgUtil::LineSegmentIntersector(osgUtil::Intersector::WINDOW, pixelX, pixelY);
        osgUtil::IntersectionVisitor visitor(line);
        visitor.setTraversalMask(camera->getCullMask());
        camera->accept(visitor);
        if (!line->containsIntersections())
            continue;
        const auto hit = line->getFirstIntersection();
        result.hit = true;
        for (osg::Node* node : hit.nodePath)
            result.path.push_back(m_objects.id(node));
        const osg::Vec3d point = hit.getWorldIntersectPoint();
        std::copy_n(point.ptr(), 3, result.point);
        return result;
    }
    return result;
}

std::optional<Value> OsgViewing::box(NodeId id)
{
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(id);
    if (!node || !m_viewers.waitForDrawing())
        return std::nullopt;
    const osg::BoundingBox box = worldBox(*node);
    if (!box.valid())
        return std::nullopt;
    const double corners[] = {box.xMin(), box.yMin(), box.zMin(), box.xMax(), box.yMax(), box.zMax()};
    Value value{ValueKind::Box, false, std::vector<std::uint8_t>(sizeof(corners))};
    std::memcpy(value.bytes.data(), corners, sizeof(corners));
    return value;
}

std::optional<Camera> OsgViewing::camera()
{
    osgViewer::View* shown = view();
    return shown && shown->getCamera() ? std::optional(cameraOf(*shown->getCamera())) : std::nullopt;
}

bool OsgViewing::lookFrom(const Camera& camera)
{
    osgViewer::View* shown = view();
    if (!shown || !shown->getCamera() || !isUsable(camera) || !m_viewers.waitForDrawing())
        return false;
    osg::Quat rotation(camera.rotation[0], camera.rotation[1], camera.rotation[2], camera.rotation[3]);
    if (rotation.length() == 0)
        return false;
    rotation /= rotation.length();
    const osg::Vec3d position(camera.position[0], camera.position[1], camera.position[2]);
    const osg::Matrixd world = osg::Matrixd::rotate(rotation) * osg::Matrixd::translate(position);
    if (shown->getCameraManipulator())
        shown->getCameraManipulator()->setByMatrix(world);
    shown->getCamera()->setViewMatrix(osg::Matrixd::inverse(world));
    setAngle(*shown->getCamera(), camera.verticalAngle);
    m_viewers.requestRedraw();
    return true;
}

} // namespace scopix::live
