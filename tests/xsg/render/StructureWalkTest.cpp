// SPDX-License-Identifier: MIT
// Random changes of a scene's structure: what is drawn after them is what a renderer draws that sees the
// scene for the first time. SCOPIX_WALK_SEED walks another way, SCOPIX_WALK_STEPS another length.
#include "Picture.h"

#include <support/RandomWalk.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/GlThread.h>
#include <xsg/render/RenderListUpdater.h>

#include <random>

namespace
{

// A scene that changes at random.
class RandomScene
{
public:
    enum class Sharing { None, Some };

    RandomScene(unsigned seed, Sharing sharing)
        : m_random(seed)
        , m_sharing(sharing)
    {
        // Two groups with so many children that not each of them is looked at.
        auto* large = new SoSeparator;
        for (int i = 0; i < 70; ++i) {
            root->addChild(makePart());
            large->addChild(i % 20 == 0 ? makeNode() : makePart());
        }
        root->insertChild(large, 30);
    }
    void change()
    {
        SoGroup& group = *anyGroup();
        const int count = group.getNumChildren();
        switch (below(8)) {
        case 0:
        case 1:
            group.insertChild(makeBranch(), below(count + 1));
            break;
        case 2:
            remove(group, below(count + 1));
            break;
        case 3:
            if (count > 0)
                group.replaceChild(below(count), makeBranch());
            break;
        case 4:
            putBack(group, below(count + 1));
            break;
        case 5:
            if (count < 40 && below(4) == 0)
                group.removeAllChildren();
            break;
        default:
            for (int tries = 0; tries < 10 && !edit(*anyNode()); ++tries) {
            }
        }
    }

    SoRef<SoSeparator> root{new SoSeparator};

private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(std::max(1, end))); }
    float number() { return static_cast<float>(below(2000)) / 1000 - 1; }

    template <class Node>
    SoTransform* moved(Node* /*unused*/)
    {
        auto* transform = new SoTransform;
        transform->translation.setValue(2 * number(), 2 * number(), 2 * number());
        return transform;
    }
    SoNode* makeShape()
    {
        const float size = 0.2F + 0.1F * number();
        if (below(3) == 0) {
            auto* sphere = new SoSphere;
            sphere->radius.setValue(size);
            return sphere;
        }
        auto* cube = new SoCube;
        cube->width.setValue(size);
        // Each of another size: which of two faces in one plane is seen depends on the order of drawing.
        cube->height.setValue(0.3F + 0.1F * number());
        cube->depth.setValue(0.3F + 0.1F * number());
        return cube;
    }
    SoNode* makeMaterial()
    {
        auto* material = new SoMaterial;
        material->diffuseColor.setValue(SbColor(0.5F + 0.5F * number(), 0.5F, 0.5F + 0.5F * number()));
        material->transparency.setValue(below(3) == 0 ? 0.5F : 0.0F);
        return material;
    }
    SoNode* makeTexture()
    {
        static constexpr unsigned char Bytes[16] = {90, 130, 170, 210, 20, 30, 40, 250,
                                                    90, 30,  70,  10,  20, 99, 40, 50};
        auto* texture = new SoTexture2;
        texture->image.setValue(2, 2, below(2) == 0 ? 1 : 4, Bytes);
        return texture;
    }
    SoNode* makeNode()
    {
        switch (below(8)) {
        case 0:
            return new SoDirectionalLight;
        case 1:
            return makeTexture();
        case 2:
            return makeMaterial();
        case 3: {
            auto* style = new SoDrawStyle;
            style->style.setValue(below(3) == 0 ? SoDrawStyle::Invisible : SoDrawStyle::Filled);
            return style;
        }
        case 4:
            return moved<SoTransform>(nullptr);
        default:
            return makeShape();
        }
    }
    SoSeparator* makePart()
    {
        auto* part = new SoSeparator;
        part->addChild(moved<SoTransform>(nullptr));
        if (below(3) == 0)
            part->addChild(makeMaterial());
        part->addChild(makeShape());
        return part;
    }
    SoNode* makeBranch()
    {
        if (m_sharing == Sharing::Some && below(8) == 0)
            return anyNode();
        switch (below(8)) {
        case 0: {
            auto* choice = new SoSwitch;
            choice->whichChild.setValue(below(4) - 2);
            return filled(choice);
        }
        case 1:
            return filled(new SoGroup);
        case 2: {
            auto* copies = new SoInstances;
            for (int i = below(4); i >= 0; --i)
                copies->matrices.set1Value(i, SbMatrix::translation({number(), number(), number()}));
            return filled(copies);
        }
        case 3:
        case 4:
            return makePart();
        default:
            return makeNode();
        }
    }
    SoNode* filled(SoGroup* group)
    {
        for (int i = below(4); i >= 0; --i)
            group->addChild(below(3) == 0 ? makePart() : makeNode());
        return group;
    }

    SoNode* anyNode()
    {
        SoNode* node = root.get();
        for (;;) {
            SoGroup* group = node->asGroup();
            if (!group || group->getNumChildren() == 0 || (node != root.get() && below(3) == 0))
                return node;
            node = group->getChild(below(group->getNumChildren()));
        }
    }
    SoGroup* anyGroup()
    {
        for (int tries = 0; tries < 10; ++tries) {
            if (SoGroup* group = anyNode()->asGroup())
                return group;
        }
        return root.get();
    }
    void remove(SoGroup& group, int place)
    {
        if (!group.getChild(place))
            return;
        m_taken.emplace_back(group.getChild(place));
        group.removeChild(place);
    }
    void putBack(SoGroup& group, int place)
    {
        if (m_taken.empty())
            return;
        group.insertChild(m_taken.back().get(), place);
        m_taken.pop_back();
    }
    bool edit(SoNode& node)
    {
        if (auto* choice = dynamic_cast<SoSwitch*>(&node))
            choice->whichChild.setValue(below(5) - 2);
        else if (auto* light = dynamic_cast<SoDirectionalLight*>(&node))
            light->on.setValue(!light->on.getValue());
        else if (auto* material = dynamic_cast<SoMaterial*>(&node))
            material->transparency.setValue(material->transparency.getValue() > 0 ? 0.0F : 0.5F);
        else if (auto* transform = dynamic_cast<SoTransform*>(&node))
            transform->translation.setValue(2 * number(), 2 * number(), 0);
        else if (auto* copies = dynamic_cast<SoInstances*>(&node))
            copies->matrices.setNum(below(4));
        else if (auto* cube = dynamic_cast<SoCube*>(&node))
            cube->width.setValue(0.3F + 0.1F * number());
        else if (auto* texture = dynamic_cast<SoTexture2*>(&node))
            texture->image.setValue(0, 0, 0, nullptr);
        else if (auto* style = dynamic_cast<SoDrawStyle*>(&node))
            style->style.setValue(style->isVisible() ? SoDrawStyle::Invisible : SoDrawStyle::Filled);
        else
            return false;
        return true;
    }

    std::mt19937 m_random;
    Sharing m_sharing;
    std::vector<SoRef<SoNode>> m_taken;
};

// A render list with the stores that it needs.
struct List {
    xsg::GeometryStore geometry;
    xsg::TextureStore textures;
    xsg::RenderListUpdater updater{geometry, textures};

    void update(SoNode* root) { updater.update(root, {}, std::chrono::steady_clock::time_point::max()); }
    void release()
    {
        updater.clear();
        geometry.release();
        textures.release();
    }
};

template <class T>
bool isEqual(const SoShared<T>& a, const SoShared<T>& b)
{
    return a == b || (a && b && *a == *b);
}

bool isEqual(const xsg::DrawStateKey& a, const xsg::DrawStateKey& b)
{
    return isEqual(a.lights, b.lights) && isEqual(a.clipPlanes, b.clipPlanes) &&
           isEqual(a.textureMatrix, b.textureMatrix) && a.ambientLight == b.ambientLight &&
           (a.texture != nullptr) == (b.texture != nullptr) &&
           (!a.texture || a.texture->bytes == b.texture->bytes) && a.textureModel == b.textureModel &&
           a.fog == b.fog && a.drawStyle == b.drawStyle;
}

bool isEqual(const xsg::RenderItem& a, const xsg::RenderList& aList, const xsg::RenderItem& b,
             const xsg::RenderList& bList)
{
    return std::memcmp(&a.instance, &b.instance, sizeof a.instance) == 0 && a.box == b.box &&
           a.geometry->key == b.geometry->key && a.isTransparent == b.isTransparent &&
           isEqual(aList.drawStates.get(a.drawState), bList.drawStates.get(b.drawState));
}

// Item by item in the order of the walk.
void expectEqual(const xsg::RenderList& patched, const xsg::RenderList& fresh)
{
    std::uint32_t a = patched.firstItem;
    std::uint32_t b = fresh.firstItem;
    std::uint64_t rank = 0;
    for (int count = 0;; ++count) {
        ASSERT_EQ(a == xsg::RenderList::None, b == xsg::RenderList::None) << count;
        if (a == xsg::RenderList::None)
            break;
        ASSERT_TRUE(isEqual(patched.items[a], patched, fresh.items[b], fresh)) << count;
        ASSERT_GT(patched.items[a].rank, rank) << count;
        rank = patched.items[a].rank;
        a = patched.items[a].next;
        b = fresh.items[b].next;
    }
    EXPECT_EQ(patched.getNumDrawn(), fresh.getNumDrawn());
    EXPECT_EQ(patched.transparent.size(), fresh.transparent.size());
    EXPECT_EQ(patched.drawStates.getSize(), fresh.drawStates.getSize());
    EXPECT_EQ(patched.lights, fresh.lights);
    EXPECT_EQ(patched.box, fresh.box);
}

void expectEqual(const xsg::WalkRecord& patched, const xsg::WalkRecord& fresh)
{
    using Nodes = std::vector<std::pair<std::uint64_t, std::uint32_t>>;
    const auto nodesOf = [](const xsg::WalkRecord& record) {
        Nodes nodes;
        record.visitIn(record.getFirst(), [&](const xsg::WalkRecord::Entry& entry) {
            nodes.emplace_back(entry.nodeId, entry.itemCount);
            return false;
        });
        return nodes;
    };
    EXPECT_EQ(nodesOf(patched), nodesOf(fresh));
}

} // namespace

TEST(StructureWalk, APatchedListIsAsAFreshOne)
{
    xsg::GlThread thread;
    ASSERT_EQ(thread.getError(), "");
    RandomScene scene(static_cast<unsigned>(fromEnvironment("SCOPIX_WALK_SEED", 1)),
                      RandomScene::Sharing::Some);
    List patched;
    const int steps = fromEnvironment("SCOPIX_WALK_STEPS", 300);
    int patches = 0;
    for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
        SCOPED_TRACE(step);
        for (int edits = step % 4; edits >= 0; --edits)
            scene.change();
        List fresh;
        thread.run([&] {
            patched.update(scene.root.get());
            patches += patched.updater.takeChanges().all ? 0 : 1;
            fresh.update(scene.root.get());
            expectEqual(patched.updater.getList(), fresh.updater.getList());
            expectEqual(patched.updater.getList().record, fresh.updater.getList().record);
            EXPECT_EQ(patched.textures.getBytes(), fresh.textures.getBytes());
            fresh.release();
        });
    }
    EXPECT_GT(patches, steps * 9 / 10);
    thread.run([&] { patched.release(); });
}

using StructureWalkPicture = Picture;

TEST_F(StructureWalkPicture, APatchedPictureIsAsAFreshOne)
{
    RandomScene scene(static_cast<unsigned>(fromEnvironment("SCOPIX_WALK_SEED", 1)),
                      RandomScene::Sharing::None);
    root = scene.root;
    renderer().setSamples(4);
    for (int step = 0; step < 6 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        for (int edits = 0; edits < 8; ++edits) {
            scene.change();
            draw(8, 8); // so that many small patches are behind what is compared
        }
        const SoPixels picture = draw();
        EXPECT_TRUE(picture.rgba == drawAfresh().rgba);
    }
}
