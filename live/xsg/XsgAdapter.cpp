// SPDX-License-Identifier: MIT
#include "XsgAdapter.h"

#include "ErrorNotices.h"
#include "FieldValues.h"
#include "NodeWatch.h"

#include <scopix/live/values/LivePacking.h>

#include <xsg/actions/SoMeasureAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/files/BranchCopy.h>
#include <xsg/frames/SoFrameLog.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/query/SoQuerySearch.h>
#include <xsg/registry/SoDB.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <unordered_map>

namespace scopix::live
{

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// So long a frame of the program may wait for one of these.
constexpr auto TimeToFind = 100ms;
constexpr auto TimeToMeasure = 20ms;
constexpr int NodesAtOnce = 10000;
constexpr std::uint64_t MostFrames = 256; // told at once
constexpr int MostNodesAbove = 100000;    // looked at for paths to a node

NodeInfo infoOf(SoNode& node)
{
    NodeInfo info;
    info.id = node.getNodeId();
    info.type = utf8Of(node.getTypeId().getName());
    info.name = utf8Of(node.getName());
    info.parentCount = static_cast<std::uint32_t>(node.getParents().size());
    if (const SoGroup* group = node.asGroup()) {
        info.canHaveChildren = true;
        info.childCount = static_cast<std::uint32_t>(group->getNumChildren());
    }
    return info;
}

bool isAscii(const char* text)
{
    return std::all_of(text, text + std::strlen(text), [](unsigned char letter) { return letter < 128; });
}

// No text that comes from outside is made a name: names live as long as the process.
bool isNamed(const SoField& field, const std::string& name)
{
    const char* own = field.getName().getString();
    return name == own || (!isAscii(own) && name == utf8Of(field.getName()));
}

SoField* fieldOf(const SoNode& node, const std::string& property)
{
    const SoFieldData& fields = *node.getFieldData();
    for (int i = 0; SoField* field = fields.getField(&node, i); ++i)
        if (isNamed(*field, property))
            return field;
    return nullptr;
}

SoType nodeType(const std::string& name)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId()))
        if (utf8Of(type.getName()) == name)
            return type;
    return SoType::badType();
}

StructureResult refused(const Sentence& refusal)
{
    return {false, 0, refusal};
}

SbRotation rotationOf(const Camera& camera)
{
    float four[4];
    std::transform(camera.rotation, camera.rotation + 4, four,
                   [](double number) { return static_cast<float>(number); });
    return SbRotation(four);
}

bool isUsable(const Camera& camera)
{
    const auto isFinite = [](double number) { return std::isfinite(number); };
    return std::all_of(camera.position, camera.position + 3, isFinite) &&
           std::all_of(camera.rotation, camera.rotation + 4, isFinite) && isFinite(camera.verticalAngle) &&
           isFinite(camera.height);
}

} // namespace

class XsgAdapter::Private final : public NodeWatchOwner
{
public:
    ~Private() { setAttached(false); }

    void setAttached(bool isAttached);
    NodeInfo know(SoNode& node);
    SoNode* find(NodeId id) const;
    SoGroup* findGroup(NodeId id) const;
    SoCamera* ownCamera() const;
    SoNode* firstRoot() const { return roots.empty() ? nullptr : roots.front().get(); }
    bool isRoot(const SoNode* node) const;
    void addPaths(SoNode* node, std::vector<NodeId> below, std::uint32_t limit, int& left,
                  std::vector<std::vector<NodeId>>& paths);
    std::optional<Picture> drawOwn(std::uint32_t width, std::uint32_t height);
    StructureResult put(SoGroup& parent, std::uint32_t index, SoNode& node);
    FrameTable takeFrames();

    std::vector<SoRef<SoNode>> roots;
    SoRef<SoCamera> setCamera;
    double aspect = 4.0 / 3;
    SoRenderer* renderer = nullptr;
    PictureFunction pictureFunction;
    bool rootsChanged = false;
    std::unordered_map<NodeId, std::unique_ptr<NodeWatch>> watches;
    std::vector<NodeWatch*> touched;
    std::vector<NodeId> ended;
    std::unordered_map<NodeId, SoRef<SoNode>> kept; // removed ones
    SoRayPickAction pick;
    std::unique_ptr<SoOffscreenRenderer> offscreen;
    NodeId marked = 0;
    std::uint32_t pictureWidth = 0;
    std::uint32_t pictureHeight = 0;
    std::vector<SoPerfCounter*> counters;
    std::unique_ptr<ErrorNotices> notices;

private:
    void watchTouched(NodeWatch& watch) override { touched.push_back(&watch); }
    void watchedNodeEnded(NodeWatch& watch) override;
    static void nodeDies(void* self, SoFieldContainer* container);

    std::unordered_map<NodeId, SoNode*> m_known; // what inspectors have heard of and still lives
    bool m_isAttached = false;
    bool m_takesFrames = false;
    std::uint64_t m_lastFrame = 0; // that was taken
};

void XsgAdapter::Private::setAttached(bool isAttached)
{
    if (isAttached == m_isAttached)
        return;
    m_isAttached = isAttached;
    if (isAttached) {
        SoFieldContainer::addDyingCallback(nodeDies, this);
        notices = std::make_unique<ErrorNotices>();
        return;
    }
    SoFieldContainer::removeDyingCallback(nodeDies, this);
    notices.reset();
    touched.clear();
    watches.clear();
    ended.clear();
    m_known.clear();
    if (std::exchange(m_takesFrames, false))
        SoFrameLog::getInstance().removeUser();
    offscreen.reset();
    kept.clear();
}

void XsgAdapter::Private::nodeDies(void* self, SoFieldContainer* container)
{
    if (container->isOfType(SoNode::getClassTypeId()))
        static_cast<Private*>(self)->m_known.erase(static_cast<SoNode*>(container)->getNodeId());
}

void XsgAdapter::Private::watchedNodeEnded(NodeWatch& watch)
{
    ended.push_back(watch.nodeId());
}

NodeInfo XsgAdapter::Private::know(SoNode& node)
{
    m_known[node.getNodeId()] = &node;
    return infoOf(node);
}

SoNode* XsgAdapter::Private::find(NodeId id) const
{
    const auto known = m_known.find(id);
    return known == m_known.end() ? nullptr : known->second;
}

SoGroup* XsgAdapter::Private::findGroup(NodeId id) const
{
    SoNode* node = find(id);
    return node ? node->asGroup() : nullptr;
}

SoCamera* XsgAdapter::Private::ownCamera() const
{
    if (setCamera || !firstRoot())
        return setCamera.get();
    SoSearchAction search;
    search.setType(SoCamera::getClassTypeId());
    return static_cast<SoCamera*>(search.find(firstRoot()));
}

bool XsgAdapter::Private::isRoot(const SoNode* node) const
{
    return std::any_of(roots.begin(), roots.end(),
                       [node](const SoRef<SoNode>& root) { return root.get() == node; });
}

void XsgAdapter::Private::addPaths(SoNode* node, std::vector<NodeId> below, std::uint32_t limit, int& left,
                                   std::vector<std::vector<NodeId>>& paths)
{
    know(*node);
    below.push_back(node->getNodeId());
    if (isRoot(node))
        paths.emplace_back(below.rbegin(), below.rend());
    for (SoGroup* parent : node->getParents()) {
        if (paths.size() >= limit || --left < 0)
            return;
        addPaths(parent, below, limit, left, paths);
    }
}

std::optional<Picture> XsgAdapter::Private::drawOwn(std::uint32_t width, std::uint32_t height)
{
    if (!offscreen)
        offscreen = std::make_unique<SoOffscreenRenderer>();
    const double scale = std::min(width / aspect, double(height));
    const int wide = std::max(1, static_cast<int>(scale * aspect));
    const int high = std::max(1, static_cast<int>(scale));
    offscreen->getRenderer().setHighlight(find(marked));
    SoPixels pixels;
    if (!offscreen->render(firstRoot(), ownCamera(), wide, high, pixels))
        return std::nullopt;
    return Picture{static_cast<std::uint32_t>(pixels.width), static_cast<std::uint32_t>(pixels.height),
                   std::move(pixels.rgba)};
}

// Those of the renderer that it was told of.
FrameTable XsgAdapter::Private::takeFrames()
{
    FrameTable table;
    SoFrameLog& log = SoFrameLog::getInstance();
    if (!renderer)
        return table;
    renderer->setFrameLog(&log);
    if (!std::exchange(m_takesFrames, true)) {
        log.addUser();
        m_lastFrame = log.getLast();
    }
    for (int figure = 0; figure < SoFrame::NumFigures; ++figure)
        table.columns.emplace_back(SoFrame::getName(static_cast<SoFrame::Figure>(figure)));
    const std::uint64_t last = log.getLast();
    const std::uint64_t first = last > MostFrames ? last - MostFrames : 0;
    SoFrame frame;
    for (std::uint64_t number = std::max(m_lastFrame, first) + 1; number <= last; ++number)
        if (log.get(number, frame))
            table.values.insert(table.values.end(), frame.figures.begin(), frame.figures.end());
    m_lastFrame = last;
    return table;
}

StructureResult XsgAdapter::Private::put(SoGroup& parent, std::uint32_t index, SoNode& node)
{
    const auto place = static_cast<int>(std::min(index, static_cast<std::uint32_t>(parent.getNumChildren())));
    if (!parent.insertChild(&node, place))
        return refused(Sentence("The node cannot be inserted there, since it would be its own descendant."));
    return {true, know(node).id, {}};
}

XsgAdapter::XsgAdapter(SoNode* root)
    : m_private(std::make_unique<Private>())
{
    SoDB::init();
    m_private->roots.emplace_back(root);
    m_private->counters = SoPerfCounterManager::getInstance()->getCounters();
}

XsgAdapter::~XsgAdapter() = default;

void XsgAdapter::setRoots(const std::vector<SoNode*>& roots)
{
    m_private->roots.assign(roots.begin(), roots.end());
    m_private->rootsChanged = true;
}

void XsgAdapter::setCamera(SoCamera* camera)
{
    m_private->setCamera = camera;
}

void XsgAdapter::setAspect(double aspect)
{
    if (std::isfinite(aspect) && aspect > 0)
        m_private->aspect = aspect;
}

void XsgAdapter::setRenderer(SoRenderer* renderer)
{
    m_private->renderer = renderer;
}

void XsgAdapter::setPictureFunction(PictureFunction function)
{
    m_private->pictureFunction = std::move(function);
}

std::string XsgAdapter::sceneGraphName() const
{
    return "xsg " SCOPIX_LIVE_XSG_VERSION;
}

Abilities XsgAdapter::abilities() const
{
    Abilities abilities;
    abilities.write = abilities.structure = abilities.pick = abilities.picture = true;
    abilities.mark = abilities.camera = abilities.find = true;
    return abilities;
}

std::vector<NodeInfo> XsgAdapter::roots()
{
    std::vector<NodeInfo> infos;
    for (const SoRef<SoNode>& root : m_private->roots)
        if (root)
            infos.push_back(m_private->know(*root));
    return infos;
}

std::optional<NodeInfo> XsgAdapter::node(NodeId id)
{
    SoNode* node = m_private->find(id);
    return node ? std::optional(infoOf(*node)) : std::nullopt;
}

std::vector<NodeInfo> XsgAdapter::children(NodeId id, std::uint32_t first, std::uint32_t count)
{
    std::vector<NodeInfo> infos;
    if (const SoGroup* group = m_private->findGroup(id)) {
        const std::vector<SoNode*>& children = group->getChildren();
        for (std::size_t i = first; i < children.size() && infos.size() < count; ++i)
            infos.push_back(m_private->know(*children[i]));
    }
    return infos;
}

std::vector<std::vector<NodeId>> XsgAdapter::pathsTo(NodeId id, std::uint32_t limit)
{
    std::vector<std::vector<NodeId>> paths;
    int left = MostNodesAbove;
    if (SoNode* node = m_private->find(id); node && limit > 0)
        m_private->addPaths(node, {}, limit, left, paths);
    return paths;
}

std::vector<PropertyInfo> XsgAdapter::properties(NodeId id)
{
    std::vector<PropertyInfo> infos;
    if (const SoNode* node = m_private->find(id)) {
        const SoFieldData& fields = *node->getFieldData();
        for (int i = 0; const SoField* field = fields.getField(node, i); ++i)
            infos.push_back(propertyOf(*field));
    }
    return infos;
}

std::optional<Value> XsgAdapter::value(NodeId id, const std::string& property)
{
    const SoNode* node = m_private->find(id);
    const SoField* field = node ? fieldOf(*node, property) : nullptr;
    return field ? std::optional(valueOf(*field)) : std::nullopt;
}

WriteResult XsgAdapter::write(NodeId id, const std::string& property, const Value& value)
{
    const SoNode* node = m_private->find(id);
    SoField* field = node ? fieldOf(*node, property) : nullptr;
    if (!field)
        return {
            false, {}, Sentence("“%1” cannot be set: the node is no more or has no such field.", {property})};
    const Sentence refusal = writeTo(*field, property, value);
    return {refusal.empty(), valueOf(*field), refusal};
}

std::vector<std::string> XsgAdapter::addableTypes(NodeId parent)
{
    std::vector<std::string> names;
    if (m_private->findGroup(parent))
        for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId()))
            if (type.canCreateInstance() && !type.isDerivedFrom(SoUnknownNode::getClassTypeId()))
                names.push_back(utf8Of(type.getName()));
    std::sort(names.begin(), names.end());
    return names;
}

StructureResult XsgAdapter::add(NodeId parent, std::uint32_t index, const std::string& type)
{
    SoGroup* group = m_private->findGroup(parent);
    if (!group)
        return refused(Sentence("“%1” cannot be added, since the group is no more.", {type}));
    const SoType wanted = nodeType(type);
    if (!wanted.canCreateInstance())
        return refused(
            Sentence("“%1” cannot be added, since the program knows no node of this type.", {type}));
    const SoRef<SoNode> node(static_cast<SoNode*>(wanted.createInstance()));
    return m_private->put(*group, index, *node);
}

StructureResult XsgAdapter::remove(NodeId parent, std::uint32_t index)
{
    SoGroup* group = m_private->findGroup(parent);
    SoNode* child = group && index < static_cast<std::uint32_t>(group->getNumChildren())
                        ? group->getChild(static_cast<int>(index))
                        : nullptr;
    if (!child)
        return refused(Sentence("The node cannot be removed, since it is not there any more."));
    const NodeId id = m_private->know(*child).id;
    m_private->kept[id] = child;
    group->removeChild(static_cast<int>(index));
    return {true, id, {}};
}

StructureResult XsgAdapter::insert(NodeId parent, std::uint32_t index, NodeId id)
{
    SoGroup* group = m_private->findGroup(parent);
    SoNode* node = m_private->find(id);
    if (!group || !node)
        return refused(Sentence("The node cannot be inserted, since it or its group is no more."));
    return m_private->put(*group, index, *node);
}

StructureResult XsgAdapter::copy(NodeId parent, std::uint32_t index, NodeId id)
{
    SoGroup* group = m_private->findGroup(parent);
    SoNode* node = m_private->find(id);
    if (!group || !node)
        return refused(Sentence("The node cannot be copied, since it or its group is no more."));
    const SoRef<SoNode> made = xsg::copyBranch(node);
    if (!made)
        return refused(
            Sentence("The node cannot be copied, since something in it is of a kind that cannot be."));
    return m_private->put(*group, index, *made);
}

void XsgAdapter::forget(NodeId node)
{
    m_private->kept.erase(node);
}

void XsgAdapter::watch(NodeId id, bool values)
{
    SoNode* node = m_private->find(id);
    if (!node) {
        m_private->ended.push_back(id);
        return;
    }
    std::unique_ptr<NodeWatch>& watch = m_private->watches[id];
    if (watch)
        watch->setValues(values);
    else
        watch = std::make_unique<NodeWatch>(*node, values, *m_private);
}

void XsgAdapter::unwatch(NodeId id)
{
    const auto watch = m_private->watches.find(id);
    if (watch == m_private->watches.end())
        return;
    std::vector<NodeWatch*>& touched = m_private->touched;
    touched.erase(std::remove(touched.begin(), touched.end(), watch->second.get()), touched.end());
    m_private->watches.erase(watch);
}

AdapterChanges XsgAdapter::takeChanges()
{
    AdapterChanges changes;
    changes.roots = std::exchange(m_private->rootsChanged, false);
    for (NodeWatch* watch : std::exchange(m_private->touched, {})) {
        for (const SbName field : watch->takeFields())
            changes.properties.push_back({watch->nodeId(), utf8Of(field)});
        if (watch->takeStructureChange())
            changes.children.push_back(watch->nodeId());
    }
    changes.ended = std::exchange(m_private->ended, {});
    for (const NodeId id : changes.ended)
        m_private->watches.erase(id);
    return changes;
}

PickResult XsgAdapter::pick(double x, double y)
{
    PickResult result;
    const SoCamera* camera = m_private->ownCamera();
    if (!camera || !std::isfinite(x) || !std::isfinite(y))
        return result;
    const SbRay ray = camera->getRay(static_cast<float>(x), static_cast<float>(1 - y),
                                     static_cast<float>(m_private->aspect));
    const std::optional<SoPickedPoint> picked = m_private->pick.pick(m_private->firstRoot(), ray);
    if (!picked)
        return result;
    result.hit = true;
    for (int i = 0; i < picked->path.getLength(); ++i)
        result.path.push_back(m_private->know(*picked->path.getNode(i)).id);
    std::copy_n(picked->point.getValue(), 3, result.point);
    return result;
}

std::optional<Value> XsgAdapter::box(NodeId id)
{
    const auto paths = pathsTo(id, 1);
    if (paths.empty())
        return std::nullopt;
    SoPath path;
    for (const NodeId each : paths.front())
        path.append(m_private->find(each));
    SoMeasureAction measure;
    measure.begin(path);
    measure.advance(Clock::now() + TimeToMeasure);
    const SoMeasureAction::Sum& sum = measure.getSum();
    if (!sum.hasBox)
        return std::nullopt;
    const double corners[6] = {sum.min[0], sum.min[1], sum.min[2], sum.max[0], sum.max[1], sum.max[2]};
    return packed(ValueKind::Box, corners);
}

void XsgAdapter::askPicture(std::uint32_t width, std::uint32_t height)
{
    m_private->pictureWidth = width;
    m_private->pictureHeight = height;
}

std::optional<Picture> XsgAdapter::takePicture()
{
    const std::uint32_t width = m_private->pictureWidth;
    const std::uint32_t height = m_private->pictureHeight;
    if (width == 0 || height == 0)
        return std::nullopt;
    auto picture = m_private->pictureFunction ? m_private->pictureFunction(width, height)
                                              : m_private->drawOwn(width, height);
    if (picture)
        m_private->pictureWidth = m_private->pictureHeight = 0;
    return picture;
}

void XsgAdapter::mark(NodeId id)
{
    m_private->marked = id;
    if (m_private->renderer)
        m_private->renderer->setHighlight(m_private->find(id));
}

bool XsgAdapter::lookFrom(const Camera& from)
{
    SoCamera* camera = m_private->ownCamera();
    if (!camera || !isUsable(from))
        return false;
    camera->position.setValue(from.position[0], from.position[1], from.position[2]);
    camera->orientation.setValue(rotationOf(from));
    if (auto* perspective = dynamic_cast<SoPerspectiveCamera*>(camera); perspective && from.verticalAngle > 0)
        perspective->heightAngle.setValue(static_cast<float>(from.verticalAngle));
    if (auto* orthographic = dynamic_cast<SoOrthographicCamera*>(camera); orthographic && from.height > 0)
        orthographic->height.setValue(static_cast<float>(from.height));
    return true;
}

std::optional<Camera> XsgAdapter::camera()
{
    const SoCamera* camera = m_private->ownCamera();
    if (!camera)
        return std::nullopt;
    Camera seen;
    std::copy_n(camera->position.getValue().getValue(), 3, seen.position);
    std::copy_n(camera->orientation.getValue().normalized().getValue(), 4, seen.rotation);
    if (const auto* perspective = dynamic_cast<const SoPerspectiveCamera*>(camera))
        seen.verticalAngle = perspective->heightAngle.getValue();
    if (const auto* orthographic = dynamic_cast<const SoOrthographicCamera*>(camera))
        seen.height = orthographic->height.getValue();
    return seen;
}

std::vector<std::vector<NodeId>> XsgAdapter::find(const std::string& query, std::uint32_t limit)
{
    std::vector<std::vector<NodeId>> paths;
    const auto end = Clock::now() + TimeToFind;
    for (const SoRef<SoNode>& root : m_private->roots) {
        SoQuerySearch search(SoQuery(query), root.get());
        while (search.getFound().size() < limit && Clock::now() < end && search.advance(NodesAtOnce)) {
        }
        for (const SoRef<SoNode>& found : search.getFound()) {
            m_private->know(*found);
            for (auto& path : pathsTo(found->getNodeId(), 1))
                if (paths.size() < limit)
                    paths.push_back(std::move(path));
        }
    }
    return paths;
}

std::vector<CounterInfo> XsgAdapter::counters()
{
    std::vector<CounterInfo> infos;
    for (const SoPerfCounter* counter : m_private->counters)
        infos.push_back({static_cast<std::uint32_t>(infos.size() + 1),
                         utf8Of(counter->getName()),
                         {},
                         counter->getDescription().str()});
    return infos;
}

std::vector<double> XsgAdapter::counterValues()
{
    std::vector<double> values;
    for (const SoPerfCounter* counter : m_private->counters)
        values.push_back(counter->getValue());
    return values;
}

FrameTable XsgAdapter::takeFrames()
{
    return m_private->takeFrames();
}

std::vector<Notice> XsgAdapter::takeNotices()
{
    return m_private->notices ? m_private->notices->take() : std::vector<Notice>();
}

void XsgAdapter::attached(bool isAttached)
{
    if (!isAttached)
        mark(0);
    m_private->setAttached(isAttached);
}

} // namespace scopix::live
