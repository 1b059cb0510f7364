// SPDX-License-Identifier: MIT
#include "OsgMark.h"

#include <osg/Depth>
#include <osg/Geometry>
#include <osg/LineWidth>
#include <osg/Program>

#include <algorithm>

namespace scopix::live
{

namespace
{

/// The edges of the unit box.
osg::ref_ptr<osg::Geometry> makeEdges()
{
    osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    for (unsigned i = 0; i < 8; ++i)
        corners->push_back({float(i & 1), float((i >> 1) & 1), float((i >> 2) & 1)});
    osg::ref_ptr<osg::DrawElementsUByte> edges = new osg::DrawElementsUByte(GL_LINES);
    for (unsigned i = 0; i < 8; ++i)
        for (unsigned axis : {1u, 2u, 4u})
            if (!(i & axis)) {
                edges->push_back(GLubyte(i));
                edges->push_back(GLubyte(i | axis));
            }
    osg::ref_ptr<osg::Vec4Array> color = new osg::Vec4Array;
    color->push_back({1, 0.6f, 0, 1});
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setVertexArray(corners);
    geometry->setColorArray(color, osg::Array::BIND_OVERALL);
    geometry->addPrimitiveSet(edges);
    geometry->setCullingActive(false);
    return geometry;
}

void setUp(osg::StateSet& state)
{
    constexpr auto off =
        osg::StateAttribute::OFF | osg::StateAttribute::OVERRIDE | osg::StateAttribute::PROTECTED;
    constexpr auto on =
        osg::StateAttribute::ON | osg::StateAttribute::OVERRIDE | osg::StateAttribute::PROTECTED;
    state.setMode(GL_LIGHTING, off);
    state.setMode(GL_DEPTH_TEST, off);
    state.setMode(GL_BLEND, off);
    state.setMode(GL_FOG, off);
    for (unsigned unit = 0; unit < 4; ++unit)
        state.setTextureMode(unit, GL_TEXTURE_2D, off);
    state.setAttributeAndModes(new osg::Program, on); // without shaders: none of the scene's is used
    state.setAttributeAndModes(new osg::LineWidth(2), on);
    state.setRenderBinDetails(100000, "RenderBin", osg::StateSet::OVERRIDE_PROTECTED_RENDERBIN_DETAILS);
}

osg::Matrixd parentMatrix(const osg::Node& node)
{
    const osg::NodePathList paths = node.getParentalNodePaths();
    return paths.empty() ? osg::Matrixd() : osg::computeLocalToWorld(paths.front());
}

} // namespace

OsgMark::OsgMark(OsgObjects& objects, OsgViewers& viewers)
    : m_objects(objects)
    , m_viewers(viewers)
{
}

void OsgMark::mark(NodeId id)
{
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(id);
    m_marked = 0;
    if (!m_viewers.waitForDrawing())
        return;
    if (!node || dynamic_cast<osg::Camera*>(node.get())) {
        takeAway();
        return;
    }
    m_marked = id;
    place(*node);
    hang();
    m_viewers.requestRedraw();
}

void OsgMark::follow()
{
    if (m_marked == 0)
        return;
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(m_marked);
    if (!node) {
        mark(0);
        return;
    }
    const bool moved = node->getBound() != m_bound || parentMatrix(*node) != m_matrix;
    const auto isOff = [this](const auto& camera) {
        return !camera.valid() || !camera->containsNode(m_node);
    };
    if (!moved && std::none_of(m_cameras.begin(), m_cameras.end(), isOff))
        return;
    if (!m_viewers.waitForDrawing())
        return;
    place(*node);
    hang();
}

void OsgMark::place(osg::Node& node)
{
    if (!m_node) {
        m_node = new OwnNode;
        m_place = new osg::MatrixTransform;
        m_place->addChild(makeEdges());
        m_place->setCullingActive(false);
        setUp(*m_place->getOrCreateStateSet());
        m_node->addChild(m_place);
    }
    m_bound = node.getBound();
    m_matrix = parentMatrix(node);
    const osg::BoundingBox box = worldBox(node);
    m_node->setNodeMask(box.valid() ? ~0u : 0u);
    if (box.valid())
        m_place->setMatrix(osg::Matrixd::scale(box._max - box._min) * osg::Matrixd::translate(box._min));
}

void OsgMark::hang()
{
    for (osg::Camera* camera : m_viewers.cameras())
        if (!camera->containsNode(m_node) && camera->getNumChildren() > 0) {
            camera->addChild(m_node);
            m_cameras.emplace_back(camera);
        }
}

void OsgMark::takeAway()
{
    for (const auto& observed : m_cameras) {
        osg::ref_ptr<osg::Camera> camera;
        if (observed.lock(camera))
            camera->removeChild(m_node);
    }
    m_cameras.clear();
    m_viewers.requestRedraw();
}

} // namespace scopix::live
