// SPDX-License-Identifier: MIT
#include "live/LiveEdits.h"

#include "live/LiveScene.h"
#include "live/LiveSentences.h"
#include "live/LiveValues.h"
#include "services/HostServices.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::size_t MostExact = std::size_t(1) << 20; // bytes of former values of a property

QString nameOf(const LiveProperty& property)
{
    return toQString(property.field->getName());
}

} // namespace

LiveEdits::LiveEdits(LiveScene& scene, HostServices& services)
    : m_scene(scene)
    , m_services(services)
{
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, [this] { flush(); });
}

// --- Values

void LiveEdits::fieldWritten(LiveNode& node, SoField& field)
{
    LiveProperty* property = node.findProperty(field);
    if (!property || property->isWritten)
        return;
    property->isWritten = true;
    m_written.push_back({NodeRef(&node), property});
    m_soon.start(0);
}

void LiveEdits::flush(bool all)
{
    m_soon.stop();
    sendValues(all);
    m_scene.getChildEdits().flush(all);
}

void LiveEdits::sendValues(bool all)
{
    std::deque<Written> waiting;
    while (!m_written.empty() && (all || m_isOver || m_numAsked < MostAsked)) {
        const Written each = m_written.front();
        m_written.pop_front();
        if (m_isOver)
            refuse(each.node, *each.property);
        else if (each.property->isSent)
            waiting.push_back(each); // its answer comes first
        else
            send(each.node, *each.property);
    }
    m_written.insert(m_written.begin(), waiting.begin(), waiting.end());
}

// An answer came: the next ones may go.
void LiveEdits::goOn()
{
    --m_numAsked;
    if (!m_written.empty())
        m_soon.start(0);
}

// The program is gone, and what it had last stays: undoing changes nothing any more either.
void LiveEdits::refuse(const NodeRef& node, LiveProperty& property)
{
    property.isWritten = false;
    property.isSent = false;
    putBack(node, property, node->refusal());
}

void LiveEdits::send(const NodeRef& node, LiveProperty& property)
{
    property.isWritten = false;
    if (property.known.kind == live::ValueKind::None)
        return putBack(node, property, {}); // it holds nothing of the program yet
    const auto shown = shownBytes(property, *property.field);
    const auto exact = property.exact.find(shown);
    const auto value =
        exact == property.exact.end() ? liveValueOf(*property.field, property.known) : exact->second;
    if (value && *value == property.known)
        return remark(property, {});
    if (!value)
        return putBack(
            node, property,
            LiveScene::tr("“%1” takes whole numbers only, and is as it was.").arg(nameOf(property)));
    if (!canWriteBack(property.info) || !m_scene.getLink().abilities().write)
        return putBack(node, property,
                       LiveScene::tr("“%1” cannot be changed: “%2” only lets it be read.")
                           .arg(nameOf(property), m_scene.getName()));
    keepExact(property, property.known);
    property.isSent = true;
    LiveProperty* sent = &property;
    ++m_numAsked;
    m_scene.getLink().write(
        node->getId(), property.info.name, *value,
        [=, bytes = *value](const live::WriteResult& result) { answered(node, *sent, bytes, result); });
}

// What a field shows of a value, by which the value is found again.
std::vector<std::uint8_t> LiveEdits::shownBytes(const LiveProperty& property, const SoField& field)
{
    live::Value shape;
    shape.kind = property.known.kind;
    shape.list = property.known.list;
    const auto value = liveValueOf(field, shape);
    return value ? value->bytes : std::vector<std::uint8_t>();
}

// By way of a field of its own: the property's holds the edit already.
void LiveEdits::keepExact(LiveProperty& property, const live::Value& value)
{
    const std::unique_ptr<SoField> field = makeLiveField(property.info, nullptr);
    if (!field || !showLiveValue(value, *field))
        return;
    std::vector<std::uint8_t> shown = shownBytes(property, *field);
    if (shown == value.bytes)
        return; // nothing is lost
    if ((property.exact.size() + 1) * (2 * value.bytes.size() + 1) > MostExact)
        property.exact.clear();
    property.exact[std::move(shown)] = value;
}

void LiveEdits::answered(const NodeRef& node, LiveProperty& property, const live::Value& sent,
                         const live::WriteResult& result)
{
    property.isSent = false;
    goOn();
    const live::Value before = property.known;
    const bool isKnown = result.value.kind != live::ValueKind::None;
    if (isKnown)
        property.known = result.value;
    else if (result.taken)
        property.known = sent;
    if (result.taken) {
        m_changes.note(*node, property, before, property.known);
        property.isChanged = m_changes.isChanged(node->getId(), property.info.name);
        keepExact(property, property.known);
    }
    if (property.isWritten) // by a later edit, which decides
        return m_soon.start(0);
    if (!result.taken)
        return putBack(node, property,
                       LiveScene::tr("“%1” refused the value of “%2”: %3")
                           .arg(m_scene.getName(), nameOf(property), toText(result.refusal)));
    if (property.known == sent)
        return remark(property, {});
    showAsTaken(property, property.known);
    remark(property, LiveScene::tr("“%1” took another value for “%2” than was asked for.")
                         .arg(m_scene.getName(), nameOf(property)));
}

void LiveEdits::showAsTaken(LiveProperty& property, const live::Value& value)
{
    m_scene.show(property, value);
    m_services.history().completeLast(*property.field);
}

void LiveEdits::putBack(const NodeRef& node, LiveProperty& property, const QString& sentence)
{
    // The caller's may go meanwhile.
    const NodeRef kept(node); // NOLINT(performance-unnecessary-copy-initialization)
    if (property.known.kind != live::ValueKind::None)
        showAsTaken(property, property.known);
    remark(property, sentence);
}

void LiveEdits::remark(LiveProperty& property, const QString& sentence)
{
    if (!sentence.isEmpty())
        emit m_scene.told(sentence);
    if (property.remark == sentence)
        return;
    property.remark = sentence;
    emit m_scene.remarked(property.field.get());
}

// --- The end

void LiveEdits::stop()
{
    m_isOver = true;
    if (!m_written.empty())
        m_soon.start(0);
}

} // namespace scopix
