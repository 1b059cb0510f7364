// SPDX-License-Identifier: MIT
#include "services/Selection.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

// Keeps a container alive while its selection is reported. One that nobody references yet still has no
// reference afterwards.
class Keep
{
public:
    explicit Keep(const SoFieldContainer* container)
        : m_container(container)
        , m_referenced(container && container->getRefCount() > 0)
    {
        if (m_container)
            m_container->ref();
    }
    ~Keep()
    {
        if (!m_container)
            return;
        if (m_referenced)
            m_container->unref();
        else
            m_container->unrefNoDelete();
    }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    const SoFieldContainer* m_container;
    bool m_referenced;
};

SoFieldContainer* containerOf(const SoField* field)
{
    return field ? field->getContainer() : nullptr;
}

} // namespace

Selection::Selection(QObject* parent)
    : QObject(parent)
{
}

void Selection::select(SoFieldContainer* node)
{
    request({Request::Node, node});
}

void Selection::select(SoField* field)
{
    request({Request::Field, containerOf(field), field});
}

void Selection::clear()
{
    select(static_cast<SoFieldContainer*>(nullptr));
}

void Selection::reemit()
{
    request({Request::Again});
}

void Selection::request(const Request& request)
{
    m_requests.push_back(request);
    if (m_telling)
        return;
    while (!m_requests.empty()) {
        const Request next = m_requests.front();
        m_requests.erase(m_requests.begin());
        process(next);
    }
}

void Selection::process(const Request& request)
{
    switch (request.kind) {
    case Request::Node:
        change({Request::Node, request.node, request.node == m_node ? m_field : nullptr}, true);
        break;
    case Request::Field: {
        SoFieldContainer* node = request.node ? request.node : m_node;
        change({Request::Field, node, request.field}, node != m_node);
        break;
    }
    case Request::Again:
        change({Request::Again, m_node, m_field}, true);
        break;
    }
}

void Selection::change(const Request& to, bool tellNode)
{
    const Keep keepFormer(m_node);
    const Keep keepNew(to.node);
    const QScopedValueRollback<bool> telling(m_telling, true);
    m_formerNode = m_node;
    m_formerField = m_field;
    if (m_field && to.node != m_node) {
        m_field = nullptr;
        emit fieldChanged(nullptr);
    }
    m_node = to.node;
    m_field = to.field;
    if (tellNode)
        emit nodeChanged(m_node);
    if (to.kind != Request::Node || (to.field && to.node != m_formerNode))
        emit fieldChanged(m_field);
}

void Selection::forget(const SoFieldContainer* dying)
{
    const auto concerns = [dying](const Request& request) { return request.node == dying; };
    m_requests.erase(std::remove_if(m_requests.begin(), m_requests.end(), concerns), m_requests.end());
    if (dying == m_node)
        change({Request::Node}, true);
    else if (dying == containerOf(m_field))
        change({Request::Field, m_node}, false);
}

} // namespace scopix
