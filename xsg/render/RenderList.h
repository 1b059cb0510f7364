// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/base/BoundingBoxTree.h>
#include <xsg/render/GeometryStore.h>
#include <xsg/render/ListInterner.h>
#include <xsg/render/Shader.h>
#include <xsg/render/TextureStore.h>
#include <xsg/values/SbBox.h>

#include <map>

class SoCamera;
class SoDrawingCallback;

namespace xsg
{

/// What drawn things have in common; switching from one to the next is what costs.
struct DrawStateKey {
    SoShared<SoLightSource> lights;
    SoShared<SbPlane> clipPlanes;
    SoShared<SbMatrix> textureMatrix;
    SbColor ambientLight;
    GpuTexture* texture = nullptr;
    int textureModel = -1;
    const SoFog* fog = nullptr;
    const SoDrawStyle* drawStyle = nullptr;
    bool operator<(const DrawStateKey& other) const;
    bool operator==(const DrawStateKey& other) const { return !(*this < other) && !(other < *this); }
};

struct RenderItem {
    InstanceData instance;
    SbBox3f box; // in world coordinates
    GpuGeometry* geometry = nullptr;
    int surroundings = 0;
    bool isTransparent = false;
};

/// An application's own drawing, between the things before it and after it.
struct CallbackItem {
    const SoDrawingCallback* node;
    SbMatrix modelMatrix;
};

/// A scene flattened into what is drawn: built by a walk over the scene, kept until the scene changes.
///
/// After a change of fields only the items that the change reaches are made anew, on a walk that skips every
/// isolating group without a change in it; the walk is compared with a record of the one before. Whatever
/// else changed (children, choices, lights, textures) has the list built again as a whole.
class RenderList : private SoTraversal
{
public:
    struct View {
        const SoCamera* camera = nullptr; // null: the first camera in the scene
        SbVec3f eye;
    };
    /// What is different from what was there when changes were last taken.
    struct Changes {
        bool all = false;
        bool orders = false; // they may be others
        std::vector<std::uint32_t> items;
        std::vector<std::uint32_t>
            regrouped; // of the items those that share something else with their neighbours now
    };

    /// What a scene unfolds to beyond this is left out.
    static constexpr std::size_t MostItems = 1U << 22U;

    /// Brings the list up to date; true when something had changed.
    bool update(SoNode* root, const View& view, GeometryStore& geometry, TextureStore& textures);
    void clear();
    Changes takeChanges() { return std::exchange(m_changes, {}); }
    /// Appends what the node, or what is below it, has drawn.
    void collectItemsOf(std::uint64_t nodeId, std::vector<std::uint32_t>& items) const;

    const std::vector<RenderItem>& getItems() const { return m_items; }
    /// Items by surroundings, then geometry; but for a few that have changed since they were put into order.
    const std::vector<std::uint32_t>& getOpaque() const { return m_opaque; }
    const std::vector<std::uint32_t>& getTransparent() const { return m_transparent; }
    const std::vector<CallbackItem>& getCallbacks() const { return m_callbacks; }
    const DrawStateKey& getState(int index) const { return *m_states[static_cast<std::size_t>(index)]; }
    const SbBox3f& getBox() const { return m_box; }
    const SoCamera* getCamera() const { return m_camera; }
    const SbMatrix& getCameraMatrix() const { return m_cameraMatrix; }
    bool hasLights() const { return m_hasLights; }
    int getNumVisited() const { return SoTraversal::getNumVisited(); }

private:
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void visitProperty(SoNode* node) override;

    /// A node as the last walk met it.
    struct Record {
        std::uint64_t nodeId;
        std::uint32_t changeCount; // of a group: of its own fields only
        std::uint32_t wholeCount;  // of a group: with everything below
        std::uint32_t firstItem;   // what a shape added
        std::uint32_t end;         // of a group: the place after its last descendant
        bool isStateScope;
    };
    /// Where the children of a group with many of them are recorded.
    struct ChildRecords {
        std::vector<std::uint32_t> records;
        std::vector<std::uint32_t> reaching; // places of children that others depend on
    };
    /// A group that is open while patching; without `children` all of them are visited.
    struct OpenPatch {
        const ChildRecords* children;
        std::uint32_t record;
    };

    void build(SoNode* root);
    bool patch(SoNode* root);
    bool follow(const SoNode* node);
    void giveUp();
    void record(const SoNode* node, std::uint32_t changeCount, bool isStateScope = false);
    void recordChildren(const SoGroup& group, std::uint32_t record);
    void planPatch(const SoGroup& group, std::uint32_t since);
    bool wantsToPatch(const SoGroup* group);
    void patchProperty(const SoNode* node, bool isCamera);
    void patchShape(SoShape* shape);
    void patchItem(std::uint32_t index, const SoShape* shape, const SbMatrix& toWorld);
    void patchBoxes();
    std::uint32_t firstItemAfter(std::size_t recordIndex) const;
    void fillItem(RenderItem& item, const SoShape* shape, const SbMatrix& toWorld);
    int surroundingsNow();
    void sort();

    std::vector<RenderItem> m_items;
    std::vector<std::uint32_t> m_opaque;
    std::vector<std::uint32_t> m_transparent;
    std::vector<CallbackItem> m_callbacks;
    std::map<DrawStateKey, int> m_stateIndex;
    std::vector<const DrawStateKey*> m_states;
    DrawStateKey m_lastState;
    int m_lastSurroundingsIndex = -1;
    BoundingBoxTree m_boxes; // of the items
    SbBox3f m_box;
    Changes m_changes;
    const SoCamera* m_camera = nullptr;
    SbMatrix m_cameraMatrix;
    bool m_hasLights = false;
    bool m_isViewDependent = false;

    /// Lists that shapes have in common, so that equal ones are the same one however often the scene is
    /// walked.
    ListInterner<SoLightSource> m_lights;
    ListInterner<SbPlane> m_clipPlanes;
    ListInterner<SbMatrix> m_textureMatrices;

    std::vector<Record> m_records;
    std::vector<std::uint32_t> m_openRecords;                       // of the groups that are open
    std::unordered_map<std::uint32_t, ChildRecords> m_childRecords; // by the group's record
    std::vector<OpenPatch> m_openPatches;
    OpenPatch m_nextPatch{};
    std::vector<std::uint32_t> m_plan;
    bool m_isPatching = false;
    bool m_gaveUp = false;
    bool m_reaches = false; // a change before this place reaches what is visited
    bool m_needsSorting = false;
    std::size_t m_outOfOrder = 0;   // items that have been regrouped since they were put into order
    std::size_t m_firstPatched = 0; // among the items of m_changes
    std::size_t m_cursor = 0;
    std::vector<char> m_reachesBefore; // of the isolating groups that are open
    std::size_t m_builtSurroundings = 0;

    View m_view;
    GeometryStore* m_geometry = nullptr;
    TextureStore* m_textures = nullptr;
    std::uint64_t m_rootId = 0;
    std::uint32_t m_rootCount = 0;
};

} // namespace xsg
