#include "services/Selection.h"

#include <xsg/core/SoFieldContainer.h>
#include <xsg/core/SoField.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace
{

// Keeps a container while it is told about. One that nobody references yet is handed back as it was.
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
    wish({Wish::Node, node});
}

void Selection::select(SoField* field)
{
    wish({Wish::Field, containerOf(field), field});
}

void Selection::clear()
{
    select(static_cast<SoFieldContainer*>(nullptr));
}

void Selection::tellAgain()
{
    wish({Wish::Again});
}

void Selection::wish(const Wish& wish)
{
    m_wishes.push_back(wish);
    if (m_telling)
        return;
    while (!m_wishes.empty()) {
        const Wish next = m_wishes.front();
        m_wishes.erase(m_wishes.begin());
        fulfil(next);
    }
}

void Selection::fulfil(const Wish& wish)
{
    switch (wish.kind) {
    case Wish::Node:
        change({Wish::Node, wish.node, wish.node == m_node ? m_field : nullptr}, true);
        break;
    case Wish::Field: {
        SoFieldContainer* node = wish.node ? wish.node : m_node;
        change({Wish::Field, node, wish.field}, node != m_node);
        break;
    }
    case Wish::Again:
        change({Wish::Again, m_node, m_field}, true);
        break;
    }
}

void Selection::change(const Wish& to, bool tellNode)
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
    if (to.kind != Wish::Node || (to.field && to.node != m_formerNode))
        emit fieldChanged(m_field);
}

void Selection::forget(const SoFieldContainer* dying)
{
    const auto concerns = [dying](const Wish& wish) { return wish.node == dying; };
    m_wishes.erase(std::remove_if(m_wishes.begin(), m_wishes.end(), concerns), m_wishes.end());
    if (dying == m_node)
        change({Wish::Node}, true);
    else if (dying == containerOf(m_field))
        change({Wish::Field, m_node}, false);
}
