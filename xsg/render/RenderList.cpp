#include <xsg/render/RenderList.h>

#include <xsg/nodes/SoCamera.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoDrawingCallback.h>
#include <xsg/nodes/SoTexture2.h>

#include <tuple>

namespace
{

auto ordered(const xsg::Surroundings& s)
{
    const SbColor& a = s.ambientLight;
    return std::make_tuple(s.texture, s.textureModel, s.lights.get(), s.clipPlanes.get(),
                           s.textureMatrix.get(), s.fog, s.drawStyle, a[0], a[1], a[2]);
}

void put(float* four, const SbVec3f& color, float fourth)
{
    std::copy_n(color.getValue(), 3, four);
    four[3] = fourth;
}

} // namespace

bool xsg::Surroundings::operator<(const Surroundings& other) const
{
    return ordered(*this) < ordered(other);
}

bool xsg::RenderList::update(SoNode* root, const View& view, GeometryStore& geometry, TextureStore& textures)
{
    const bool same = root->getNodeId() == m_rootId && root->getChangeCount() == m_rootCount &&
                      view.camera == m_view.camera && view.highlight == m_view.highlight &&
                      (!m_isViewDependent || view.eye == m_view.eye);
    if (same)
        return false;
    m_view = view;
    m_geometry = &geometry;
    m_textures = &textures;
    build(root);
    m_rootId = root->getNodeId();
    m_rootCount = root->getChangeCount();
    return true;
}

void xsg::RenderList::clear()
{
    m_items.clear();
    m_opaque.clear();
    m_transparent.clear();
    m_callbacks.clear();
    m_surroundingsIndex.clear();
    m_surroundings.clear();
    m_lastSurroundingsIndex = -1;
    m_lastSurroundings = {};
    m_box = {};
    m_camera = nullptr;
    m_cameraMatrix = {};
    m_hasLights = false;
    m_isViewDependent = false;
    m_highlightDepth = 0;
    m_rootId = 0;
}

void xsg::RenderList::build(SoNode* root)
{
    clear();
    m_geometry->beginRound();
    m_textures->beginRound();
    resetState();
    state().eye = m_view.eye;
    traverse(root);
    m_geometry->endRound();
    m_textures->endRound();
    sort();
}

bool xsg::RenderList::enterGroup(SoGroup* group)
{
    m_isViewDependent = m_isViewDependent || group->isViewDependent();
    if (group == m_view.highlight)
        ++m_highlightDepth;
    return true;
}

void xsg::RenderList::leaveGroup(SoGroup* group)
{
    if (group == m_view.highlight)
        --m_highlightDepth;
}

void xsg::RenderList::visitProperty(SoNode* node)
{
    if (state().camera == node && (m_view.camera ? node == m_view.camera : !m_camera)) {
        m_camera = state().camera;
        m_cameraMatrix = state().modelMatrix;
    }
    m_hasLights = m_hasLights || (state().lights && !state().lights->empty());
}

void xsg::RenderList::visitShape(SoShape* shape)
{
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    if (const auto* callback = dynamic_cast<const SoDrawingCallback*>(shape))
        m_callbacks.push_back({callback, state().modelMatrix});
    state().forEachInstance([&](const SbMatrix& matrix) { addItem(shape, matrix); });
}

void xsg::RenderList::addItem(const SoShape* shape, const SbMatrix& toWorld)
{
    const SbBox3f box = toWorld.transform(shape->getBox(state()));
    m_box.extendBy(box);
    GpuGeometry* geometry = m_geometry->get(*shape, state());
    if (geometry->indexCount == 0)
        return;
    RenderItem& item = m_items.emplace_back();
    const SoMaterialState& material = state().material;
    std::copy_n((shape->getPlacement() * toWorld).getValue(), 16, item.instance.matrix);
    put(item.instance.diffuse, material.diffuse, 1 - std::clamp(material.transparency, 0.0F, 1.0F));
    put(item.instance.ambient, material.ambient, material.shininess);
    put(item.instance.specular, material.specular, 1);
    put(item.instance.emissive, material.emissive, 1);
    item.box = box;
    item.geometry = geometry;
    item.surroundings = surroundingsNow();
    const GpuTexture* texture = m_lastSurroundings.texture;
    item.isTransparent = material.transparency > 0 || (texture && texture->hasAlpha);
    item.isHighlighted = m_highlightDepth > 0 || shape == m_view.highlight;
}

int xsg::RenderList::surroundingsNow()
{
    const SoState& s = state();
    Surroundings now;
    now.lights = s.lights;
    now.clipPlanes = s.clipPlanes;
    now.ambientLight = s.ambientLight;
    now.texture = m_textures->get(s.texture, s.textureQuality);
    if (now.texture) {
        now.textureModel = s.texture->model.getValue();
        now.textureMatrix = s.textureMatrix;
    }
    now.fog = s.fog;
    now.drawStyle = s.drawStyle;
    if (m_lastSurroundingsIndex >= 0 && now == m_lastSurroundings)
        return m_lastSurroundingsIndex;
    const auto [place, isNew] = m_surroundingsIndex.emplace(now, static_cast<int>(m_surroundings.size()));
    if (isNew)
        m_surroundings.push_back(&place->first);
    m_lastSurroundings = now;
    m_lastSurroundingsIndex = place->second;
    return place->second;
}

void xsg::RenderList::sort()
{
    for (std::uint32_t i = 0; i < m_items.size(); ++i)
        (m_items[i].isTransparent ? m_transparent : m_opaque).push_back(i);
    const auto key = [&](std::uint32_t i) {
        // By the geometry's index buffer, since addresses would differ from run to run.
        return std::make_tuple(m_items[i].surroundings, m_items[i].geometry->indices.get(), i);
    };
    std::sort(m_opaque.begin(), m_opaque.end(),
              [&](std::uint32_t a, std::uint32_t b) { return key(a) < key(b); });
}
