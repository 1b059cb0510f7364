// SPDX-License-Identifier: MIT
#include "live/LiveReplay.h"

#include "live/LiveScene.h"
#include "live/LiveValues.h"
#include "services/HostServices.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>

#include <QPointer>

namespace scopix
{

namespace
{

// Only writes: the history gives the fields back what they held.
class WriteValues : public SpxCommand, public SpxEditedFields
{
public:
    struct Write {
        SoRef<LiveNode> node;
        LiveProperty* property;
        live::Value value;
    };
    explicit WriteValues(std::vector<Write> writes)
        : m_writes(std::move(writes))
    {
    }
    void execute() override { redo(); }
    void undo() override {}
    void redo() override
    {
        for (const Write& each : m_writes)
            showLiveValue(each.value, *each.property->field);
    }
    std::vector<SoField*> editedFields() const override
    {
        std::vector<SoField*> fields;
        for (const Write& each : m_writes)
            fields.push_back(each.property->field.get());
        return fields;
    }

private:
    std::vector<Write> m_writes;
};

// The child at the same place where it is called so, or else the only one that is.
LiveNode* childAt(const LiveNode& node, const LiveChanges::Step& step)
{
    const auto fits = [&step](const SoNode* child) {
        const auto* live = dynamic_cast<const LiveNode*>(child);
        return live && live->getInfo().type == step.type && live->getInfo().name == step.name;
    };
    SoNode* there = node.getChild(step.index);
    if (fits(there))
        return static_cast<LiveNode*>(there);
    const auto& children = node.getChildren();
    const auto found = std::find_if(children.begin(), children.end(), fits);
    const bool isOnly = found != children.end() && std::none_of(found + 1, children.end(), fits);
    return isOnly ? static_cast<LiveNode*>(*found) : nullptr;
}

} // namespace

LiveReplay::LiveReplay(LiveScene& scene, HostServices& services, std::vector<LiveChanges::Change> changes,
                       Which which)
    : QObject(&scene)
    , m_scene(scene)
    , m_services(services)
    , m_changes(std::move(changes))
    , m_which(which)
{
}

void LiveReplay::start()
{
    next();
}

void LiveReplay::next()
{
    if (m_at == m_changes.size())
        return m_scene.whenInFront([self = QPointer<LiveReplay>(this)] {
            if (self)
                self->writeAll();
        });
    goDown(NodeRef(static_cast<LiveNode*>(m_scene.getRoot())), 0);
}

void LiveReplay::goDown(const NodeRef& node, std::size_t step)
{
    const QPointer<LiveReplay> self(this);
    const auto& way = m_changes[m_at].way;
    if (step == way.size())
        return m_scene.whenShown(*node, [self, node] {
            if (self)
                self->arrived(node);
        });
    m_scene.getWays().whenUnfolded(*node, [self, node, step] {
        if (!self)
            return;
        LiveNode* child = childAt(*node, self->m_changes[self->m_at].way[step]);
        if (child)
            self->goDown(NodeRef(child), step + 1);
        else
            self->miss();
    });
}

void LiveReplay::arrived(const NodeRef& node)
{
    const LiveChanges::Change& change = m_changes[m_at];
    const live::Value& value = m_which == Which::After ? change.after : change.before;
    LiveProperty* property = node->findProperty(change.property);
    if (!property || !property->field || property->known.kind != value.kind ||
        property->known.list != value.list)
        return miss();
    m_found.push_back({node, property, value});
    ++m_at;
    next();
}

void LiveReplay::miss()
{
    m_missing.append(QString::fromStdString(m_changes[m_at].path.toText()));
    ++m_at;
    next();
}

void LiveReplay::writeAll()
{
    std::vector<WriteValues::Write> writes;
    for (const Found& each : m_found) {
        LiveEdits::keepExact(*each.property, each.value);
        writes.push_back({each.node, each.property, each.value});
    }
    const int count = static_cast<int>(writes.size());
    if (count > 0)
        static_cast<SpxSceneServices&>(m_services)
            .executeCommand(new WriteValues(std::move(writes)),
                            m_which == Which::After ? tr("Apply changes again") : tr("Take changes back"));
    emit finished(count, m_missing);
    deleteLater();
}

} // namespace scopix
