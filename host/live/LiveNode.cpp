// SPDX-License-Identifier: MIT
#include "live/LiveNode.h"

#include "live/LiveScene.h"
#include "live/LiveValues.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <unordered_set>

template class SoTyped<scopix::LiveNode, SoGroup>;

namespace scopix
{

namespace
{

constexpr std::size_t MostTypes = 10000; // of all programs; types are never released
constexpr std::size_t MostProperties = 4096;
constexpr std::size_t LongestName = 256;

// Code that finds a type of the scene graph expects its class (decisions.md: live-types).
SoType findType(const std::string& name)
{
    const SoType base = LiveNode::getClassTypeId();
    for (const std::string& each : {name, OtherProgramPrefix + name}) {
        const SoType type = SoType::fromName(liveName(each));
        if (type.isBad() || type.isDerivedFrom(base))
            return SoType::createType(base, liveName(each));
    }
    return base;
}

} // namespace

SoType LiveNode::typeFor(const std::string& programType)
{
    static std::map<std::string, SoType> types;
    const std::string name = programType.empty() ? "Object" : programType.substr(0, LongestName);
    const auto found = types.find(name);
    if (found != types.end())
        return found->second;
    if (types.size() >= MostTypes)
        return LiveNode::getClassTypeId();
    return types[name] = findType(name);
}

LiveNode::LiveNode(LiveScene& scene, const live::NodeInfo& info)
    : m_scene(&scene)
    , m_info(info)
    , m_type(typeFor(info.type))
{
    if (!info.name.empty())
        setName(liveName(info.name));
}

LiveNode::~LiveNode()
{
    if (m_scene)
        m_scene->forget(*this);
}

void LiveNode::update(const live::NodeInfo& info)
{
    if (info.name != m_info.name)
        setName(liveName(info.name));
    m_info.name = info.name;
    m_info.childCount = info.childCount;
    m_info.parentCount = info.parentCount;
}

bool LiveNode::isRenamed() const
{
    return getName() != liveName(m_info.name);
}

void LiveNode::touch()
{
    SoNotification change;
    change.serial = nextSerial();
    notify(change);
}

void LiveNode::notify(const SoNotification& change)
{
    SoGroup::notify(change);
    if (!m_scene || isBeingDestroyed())
        return;
    if (!change.field)
        m_scene->childrenWritten(*this);
    else if (change.field->getContainer() == this)
        m_scene->fieldWritten(*this, *change.field);
}

LiveProperty* LiveNode::findProperty(const SoField& field) const
{
    const auto is = [&field](const auto& each) { return each->field.get() == &field; };
    const auto found = std::find_if(m_properties.begin(), m_properties.end(), is);
    return found == m_properties.end() ? nullptr : found->get();
}

LiveProperty* LiveNode::findProperty(const std::string& name) const
{
    const auto is = [&name](const auto& each) { return each->info.name == name; };
    const auto found = std::find_if(m_properties.begin(), m_properties.end(), is);
    return found == m_properties.end() ? nullptr : found->get();
}

void LiveNode::setProperties(const std::vector<live::PropertyInfo>& properties)
{
    std::unordered_set<std::string> names;
    for (const live::PropertyInfo& info : properties) {
        const SbName name = liveName(info.name);
        if (m_properties.size() >= MostProperties || name == SbName() ||
            !names.insert(name.getString()).second)
            continue;
        m_properties.push_back(std::make_unique<LiveProperty>());
        m_properties.back()->info = info;
        m_properties.back()->field = makeLiveField(info, this);
    }
}

bool LiveNode::mayHaveMoreChildren() const
{
    return m_scene && m_childrenFetched == Fetched::No && !m_hasEnded;
}

void LiveNode::fetchChildren()
{
    if (m_scene)
        m_scene->getFetching().fetchChildren(*this);
}

void LiveNode::askTypesToAdd(const AnswerTypes& answer)
{
    if (m_scene)
        m_scene->getAdditions().askTypes(*this, answer);
}

void LiveNode::actInProgram(const MirroredAct& act)
{
    if (m_scene)
        m_scene->getAdditions().start(act);
}

QString LiveNode::refusal() const
{
    return m_scene ? m_scene->refusalOf(*this)
                   : LiveScene::tr("The program that this node was in is not attached any more.");
}

QString LiveNode::structureRefusal() const
{
    return m_scene ? m_scene->structureRefusalOf(*this) : refusal();
}

QString LiveNode::remarkOn(const SoField& field) const
{
    const LiveProperty* property = findProperty(field);
    return property ? property->remark : QString();
}

} // namespace scopix
