// SPDX-License-Identifier: MIT
#include "NodeMatcher.h"

#include "FieldMatch.h"
#include "QueryText.h"

#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoNode.h>

#include <algorithm>

namespace xsg
{

namespace
{

using Kind = QueryTerm::Kind;

template <class Test>
bool anyField(const SoNode& node, const std::vector<int>& indices, Test test)
{
    return std::any_of(indices.begin(), indices.end(),
                       [&](int index) { return test(*node.getFieldData()->getField(&node, index)); });
}

bool nameContains(const SoNode& node, const std::string& lower)
{
    const char* name = node.getName().getString();
    return *name && containsIgnoringCase(nameToUtf8(name), lower);
}

bool typeContains(const SoType& type, const std::string& lower)
{
    return containsIgnoringCase(type.getName().getString(), lower);
}

bool typeOrBaseContains(const SoNode& node, const std::string& lower)
{
    const std::vector<SoType> types = SoType::getAllDerivedFrom(SoNode::getClassTypeId());
    return std::any_of(types.begin(), types.end(),
                       [&](SoType type) { return node.isOfType(type) && typeContains(type, lower); });
}

bool concerns(const SoField& field, const QueryTerm& term)
{
    const char* name = field.getName().getString();
    switch (term.kind) {
    case Kind::Word:
        return holdsText(field);
    case Kind::Field:
        return containsIgnoringCase(nameToUtf8(name), term.text);
    case Kind::Compare:
        return equalsIgnoringCase(nameToUtf8(name), term.field);
    default:
        return true;
    }
}

} // namespace

NodeMatcher::NodeMatcher(Alternatives alternatives, const SoNode* root)
    : m_alternatives(std::move(alternatives))
{
    for (const QueryTerms& terms : *m_alternatives) {
        for (const QueryTerm& term : terms) {
            if (term.path)
                m_places.emplace(&term, PlaceMatch(*term.path, root));
        }
    }
}

bool NodeMatcher::matches(const SoNode& node)
{
    const TypePlans& plans = plansFor(node);
    auto plan = plans.plans.begin();
    for (const QueryTerms& terms : *m_alternatives) {
        const auto first = plan;
        plan += static_cast<std::ptrdiff_t>(terms.size());
        if (std::equal(terms.begin(), terms.end(), first, [&](const QueryTerm& term, const Plan& its) {
                return holds(node, term, its) != term.negated;
            }))
            return true;
    }
    return false;
}

const NodeMatcher::TypePlans& NodeMatcher::plansFor(const SoNode& node)
{
    const char* type = node.getTypeId().getName().getString();
    const int numFields = node.getFieldData()->getNumFields();
    if (m_last && m_last->type == type && m_last->numFields == numFields)
        return *m_last;
    TypePlans& plans = m_plans[type];
    if (plans.type != type || plans.numFields != numFields)
        plans = makePlans(node);
    m_last = &plans;
    return plans;
}

NodeMatcher::TypePlans NodeMatcher::makePlans(const SoNode& node) const
{
    TypePlans result{node.getTypeId().getName().getString(), node.getFieldData()->getNumFields(), {}};
    for (const QueryTerms& terms : *m_alternatives) {
        for (const QueryTerm& term : terms)
            result.plans.push_back(makePlan(node, term));
    }
    return result;
}

NodeMatcher::Plan NodeMatcher::makePlan(const SoNode& node, const QueryTerm& term)
{
    Plan plan;
    plan.typeMatches = (term.kind == Kind::Word && typeContains(node.getTypeId(), term.text)) ||
                       (term.kind == Kind::Type && typeOrBaseContains(node, term.text));
    const SoFieldData* fields = node.getFieldData();
    for (int i = 0; i < fields->getNumFields(); ++i) {
        if (concerns(*fields->getField(&node, i), term))
            plan.fields.push_back(i);
    }
    return plan;
}

bool NodeMatcher::holds(const SoNode& node, const QueryTerm& term, const Plan& plan)
{
    switch (term.kind) {
    case Kind::Word:
        return plan.typeMatches || nameContains(node, term.text) ||
               anyField(node, plan.fields,
                        [&](const SoField& each) { return valueContains(each, term.text); }) ||
               (term.path && m_places.at(&term).matches(node));
    case Kind::Place:
        return m_places.at(&term).matches(node);
    case Kind::Name:
        return nameContains(node, term.text);
    case Kind::Type:
        return plan.typeMatches;
    case Kind::Field:
        return !plan.fields.empty();
    case Kind::Value:
        return anyField(node, plan.fields,
                        [&](const SoField& each) { return valueContains(each, term.text); });
    case Kind::Compare:
        return anyField(node, plan.fields, [&](const SoField& each) { return comparesTo(each, term); });
    case Kind::Changed:
        return anyField(node, plan.fields, [](const SoField& each) { return !each.isDefault(); });
    case Kind::Connected:
        return anyField(node, plan.fields, [](const SoField& each) { return each.isConnected(); });
    case Kind::Ignored:
        return anyField(node, plan.fields, [](const SoField& each) { return each.isIgnored(); });
    case Kind::Shared:
        return node.getParents().size() > 1;
    }
    return false;
}

} // namespace xsg
