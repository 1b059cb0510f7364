// SPDX-License-Identifier: MIT
#include <xsg/render/RenderList.h>

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <algorithm>
#include <tuple>

namespace
{

constexpr std::size_t MostOutOfOrder = 64;

auto ordered(const xsg::DrawStateKey& s)
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

bool xsg::DrawStateKey::operator<(const DrawStateKey& other) const
{
    return ordered(*this) < ordered(other);
}

bool xsg::RenderList::update(SoNode* root, const View& view, GeometryStore& geometry, TextureStore& textures)
{
    const bool sameView = root->getNodeId() == m_rootId && view.camera == m_view.camera &&
                          (!m_isViewDependent || view.eye == m_view.eye);
    if (sameView && root->getChangeCount() == m_rootCount)
        return false;
    m_view = view;
    m_geometry = &geometry;
    m_textures = &textures;
    if (!sameView || !patch(root))
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
    m_records.clear();
    m_childRecords.clear();
    m_stateIndex.clear();
    m_states.clear();
    m_lastSurroundingsIndex = -1;
    m_lastState = {};
    m_lights.clear();
    m_clipPlanes.clear();
    m_textureMatrices.clear();
    m_box = {};
    m_changes = {};
    m_changes.all = true;
    m_camera = nullptr;
    m_cameraMatrix = {};
    m_hasLights = false;
    m_isViewDependent = false;
    m_rootId = 0;
}

void xsg::RenderList::build(SoNode* root)
{
    clear();
    m_geometry->giveAllBack();
    m_textures->beginRound();
    m_openRecords.clear();
    resetState();
    state().eye = m_view.eye;
    traverse(root);
    m_geometry->removeUnused();
    m_textures->endRound();
    m_builtSurroundings = m_states.size();
    m_boxes.build(m_items.size(), [this](std::size_t i) { return m_items[i].box; });
    m_box = m_boxes.getWhole();
    sort();
}

bool xsg::RenderList::patch(SoNode* root)
{
    // Surroundings that are not used any more stay until the next build.
    if (m_records.empty() || m_states.size() > 2 * m_builtSurroundings + 64)
        return false;
    m_isPatching = true;
    m_gaveUp = false;
    m_reaches = false;
    m_needsSorting = false;
    m_cursor = 0;
    m_firstPatched = m_changes.items.size();
    m_openPatches.clear();
    m_reachesBefore.clear();
    resetState();
    state().eye = m_view.eye;
    traverse(root);
    m_isPatching = false;
    if (m_gaveUp || m_cursor != m_records.size())
        return false;
    m_geometry->removeUnused();
    patchBoxes();
    // To put many into order costs more than to draw a few apart from their like.
    if (m_needsSorting || m_outOfOrder > MostOutOfOrder + m_opaque.size() / 8) {
        m_changes.orders = true;
        sort();
    }
    return true;
}

void xsg::RenderList::patchBoxes()
{
    std::size_t last = m_boxes.getNumChunks();
    for (std::size_t i = m_firstPatched; i < m_changes.items.size(); ++i) {
        const std::size_t chunk = BoundingBoxTree::chunkOf(m_changes.items[i]);
        if (chunk != last)
            m_boxes.refresh(last = chunk, [this](std::size_t item) { return m_items[item].box; });
    }
    if (m_firstPatched < m_changes.items.size())
        m_box = m_boxes.getWhole();
}

// Whether the walk meets the node that it met at this place before.
bool xsg::RenderList::follow(const SoNode* node)
{
    if (!m_openPatches.empty() && m_openPatches.back().children)
        m_cursor = m_openPatches.back().children->records[static_cast<std::size_t>(getFrames().back().child)];
    if (m_cursor < m_records.size() && m_records[m_cursor].nodeId == node->getNodeId())
        return true;
    giveUp();
    return false;
}

void xsg::RenderList::giveUp()
{
    m_gaveUp = true;
    stop();
}

void xsg::RenderList::record(const SoNode* node, std::uint32_t changeCount, bool isStateScope)
{
    m_records.push_back({node->getNodeId(), changeCount, node->getChangeCount(),
                         static_cast<std::uint32_t>(m_items.size()), 0, isStateScope});
}

void xsg::RenderList::recordChildren(const SoGroup& group, std::uint32_t record)
{
    ChildRecords children;
    for (std::uint32_t i = record + 1; i < m_records.size(); i = std::max(m_records[i].end, i + 1)) {
        if (!m_records[i].isStateScope)
            children.reaching.push_back(static_cast<std::uint32_t>(children.records.size()));
        children.records.push_back(i);
    }
    // A group may have chosen among its children.
    if (static_cast<int>(children.records.size()) != group.getNumChildren())
        return;
    group.rememberTouched();
    m_childRecords[record] = std::move(children);
}

bool xsg::RenderList::wantsGroup(SoGroup* group)
{
    if (m_isPatching)
        return wantsToPatch(group);
    m_isViewDependent = m_isViewDependent || group->isViewDependent();
    m_openRecords.push_back(static_cast<std::uint32_t>(m_records.size()));
    record(group, group->getFieldChangeCount(), group->isStateScope());
    return true;
}

bool xsg::RenderList::wantsToPatch(const SoGroup* group)
{
    if (!follow(group))
        return false;
    Record& known = m_records[m_cursor];
    const bool isSame = known.wholeCount == group->getChangeCount();
    if (!m_reaches && isSame && group->isStateScope()) {
        m_cursor = known.end;
        return false;
    }
    // A group's own fields choose or repeat its children.
    if (!isSame && known.changeCount != group->getFieldChangeCount()) {
        giveUp();
        return false;
    }
    m_nextPatch = {nullptr, static_cast<std::uint32_t>(m_cursor)};
    if (!m_reaches && group->getNumChildren() >= SoGroup::ManyChildren)
        planPatch(*group, known.wholeCount);
    known.wholeCount = group->getChangeCount();
    ++m_cursor;
    return true;
}

// Visits only what changed, where that is known and reaches nothing beside it.
void xsg::RenderList::planPatch(const SoGroup& group, std::uint32_t since)
{
    const auto known = m_childRecords.find(m_nextPatch.record);
    m_plan.clear();
    if (known == m_childRecords.end() || !group.findTouched(since, m_plan))
        return;
    const ChildRecords& children = known->second;
    const auto isStateScope = [&](std::uint32_t place) {
        return m_records[children.records[place]].isStateScope;
    };
    if (!std::all_of(m_plan.begin(), m_plan.end(), isStateScope))
        return;
    const auto middle = static_cast<std::ptrdiff_t>(m_plan.size());
    m_plan.insert(m_plan.end(), children.reaching.begin(), children.reaching.end());
    std::inplace_merge(m_plan.begin(), m_plan.begin() + middle, m_plan.end());
    m_nextPatch.children = &children;
}

void xsg::RenderList::enterGroup(SoGroup* group)
{
    if (!m_isPatching)
        return;
    if (group->isStateScope())
        m_reachesBefore.push_back(m_reaches ? 1 : 0);
    m_openPatches.push_back(m_nextPatch);
    if (m_nextPatch.children)
        visitOnly(m_plan);
}

void xsg::RenderList::leaveGroup(SoGroup* group)
{
    if (!m_isPatching) {
        const std::uint32_t own = m_openRecords.back();
        m_openRecords.pop_back();
        m_records[own].end = static_cast<std::uint32_t>(m_records.size());
        if (group->getNumChildren() >= SoGroup::ManyChildren)
            recordChildren(*group, own);
        return;
    }
    if (m_openPatches.back().children)
        m_cursor = m_records[m_openPatches.back().record].end;
    m_openPatches.pop_back();
    if (group->isStateScope()) {
        m_reaches = m_reachesBefore.back() != 0;
        m_reachesBefore.pop_back();
    }
}

void xsg::RenderList::visitProperty(SoNode* node)
{
    const bool isCamera = state().camera == node;
    if (isCamera && (m_view.camera ? node == m_view.camera : !m_camera || m_camera == node)) {
        m_camera = state().camera;
        m_cameraMatrix = state().modelMatrix;
    }
    if (m_isPatching) {
        patchProperty(node, isCamera);
        return;
    }
    m_hasLights = m_hasLights || state().lights;
    record(node, node->getChangeCount());
}

void xsg::RenderList::patchProperty(const SoNode* node, bool isCamera)
{
    if (!follow(node))
        return;
    Record& known = m_records[m_cursor++];
    if (known.changeCount == node->getChangeCount())
        return;
    known.changeCount = node->getChangeCount();
    // Whether there is any light concerns the whole scene, and textures that nobody uses go with the next
    // build.
    if (dynamic_cast<const SoLight*>(node) || dynamic_cast<const SoTexture2*>(node))
        giveUp();
    m_reaches = m_reaches || !isCamera;
}

void xsg::RenderList::visitShape(SoShape* shape)
{
    if (m_isPatching) {
        patchShape(shape);
        return;
    }
    record(shape, shape->getChangeCount());
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    if (const SoDrawingCallback* callback = shape->asDrawingCallback())
        m_callbacks.push_back({callback, state().modelMatrix});
    state().forEachInstance([&](const SbMatrix& matrix) {
        if (m_items.size() < MostItems)
            fillItem(m_items.emplace_back(), shape, matrix);
    });
}

void xsg::RenderList::patchShape(SoShape* shape)
{
    if (!follow(shape))
        return;
    Record& known = m_records[m_cursor++];
    if (!m_reaches && known.changeCount == shape->getChangeCount())
        return;
    known.changeCount = shape->getChangeCount();
    const bool isVisible = !state().drawStyle || state().drawStyle->isVisible();
    const std::size_t copies = !isVisible ? 0 : state().instances ? state().instances->size() : 1;
    if (firstItemAfter(m_cursor - 1) - known.firstItem != copies || shape->asDrawingCallback()) {
        giveUp();
        return;
    }
    std::uint32_t at = known.firstItem;
    if (isVisible)
        state().forEachInstance([&](const SbMatrix& matrix) { patchItem(at++, shape, matrix); });
}

void xsg::RenderList::patchItem(std::uint32_t index, const SoShape* shape, const SbMatrix& toWorld)
{
    RenderItem& item = m_items[index];
    m_changes.items.push_back(index);
    GpuGeometry* geometry = item.geometry;
    const int surroundings = item.surroundings;
    const bool isTransparent = item.isTransparent;
    const bool isDrawn = geometry->indexCount > 0;
    fillItem(item, shape, toWorld);
    m_geometry->release(geometry);
    if (item.isTransparent != isTransparent || (item.geometry->indexCount > 0) != isDrawn)
        m_needsSorting = true;
    if (item.geometry == geometry && item.surroundings == surroundings)
        return;
    m_changes.regrouped.push_back(index);
    ++m_outOfOrder;
}

std::uint32_t xsg::RenderList::firstItemAfter(std::size_t recordIndex) const
{
    return recordIndex + 1 < m_records.size() ? m_records[recordIndex + 1].firstItem
                                              : static_cast<std::uint32_t>(m_items.size());
}

void xsg::RenderList::fillItem(RenderItem& item, const SoShape* shape, const SbMatrix& toWorld)
{
    const SoMaterialState& material = state().material;
    std::copy_n((shape->getPlacement() * toWorld).getValue(), 16, item.instance.matrix);
    put(item.instance.diffuse, material.diffuse, 1 - std::clamp(material.transparency, 0.0F, 1.0F));
    put(item.instance.ambient, material.ambient, material.shininess);
    put(item.instance.specular, material.specular, 1);
    put(item.instance.emissive, material.emissive, 1);
    item.box = toWorld.transform(shape->getBox(state()));
    item.geometry = m_geometry->get(*shape, state());
    item.surroundings = surroundingsNow();
    const GpuTexture* texture = m_lastState.texture;
    item.isTransparent = material.transparency > 0 || (texture && texture->hasAlpha);
}

void xsg::RenderList::collectItemsOf(std::uint64_t nodeId, std::vector<std::uint32_t>& items) const
{
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        if (m_records[i].nodeId != nodeId)
            continue;
        const std::uint32_t last = std::max(m_records[i].end, static_cast<std::uint32_t>(i) + 1) - 1;
        for (std::uint32_t item = m_records[i].firstItem; item < firstItemAfter(last); ++item) {
            if (m_items[item].geometry->indexCount > 0)
                items.push_back(item);
        }
    }
}

int xsg::RenderList::surroundingsNow()
{
    const SoState& s = state();
    DrawStateKey now;
    now.lights = m_lights.get(s.lights);
    now.clipPlanes = m_clipPlanes.get(s.clipPlanes);
    now.ambientLight = s.ambientLight;
    now.texture = m_textures->get(s.texture, s.textureQuality);
    if (now.texture) {
        now.textureModel = s.texture->model.getValue();
        now.textureMatrix = m_textureMatrices.get(s.textureMatrix);
    }
    now.fog = s.fog;
    now.drawStyle = s.drawStyle;
    if (m_lastSurroundingsIndex >= 0 && now == m_lastState)
        return m_lastSurroundingsIndex;
    const auto [place, isNew] = m_stateIndex.emplace(now, static_cast<int>(m_states.size()));
    if (isNew)
        m_states.push_back(&place->first);
    m_lastState = now;
    m_lastSurroundingsIndex = place->second;
    return place->second;
}

void xsg::RenderList::sort()
{
    m_outOfOrder = 0;
    m_opaque.clear();
    m_transparent.clear();
    for (std::uint32_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].geometry->indexCount > 0)
            (m_items[i].isTransparent ? m_transparent : m_opaque).push_back(i);
    }
    const auto key = [&](std::uint32_t i) {
        // By the geometry's index buffer, since addresses would differ from run to run.
        return std::make_tuple(m_items[i].surroundings, m_items[i].geometry->indices.get(), i);
    };
    const auto isBefore = [&](std::uint32_t a, std::uint32_t b) { return key(a) < key(b); };
    // Mostly they are in order as they come.
    if (!std::is_sorted(m_opaque.begin(), m_opaque.end(), isBefore))
        std::sort(m_opaque.begin(), m_opaque.end(), isBefore);
}
