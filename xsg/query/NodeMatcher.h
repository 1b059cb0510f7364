// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/query/PlaceMatch.h>
#include <xsg/query/QueryTerm.h>

#include <memory>
#include <unordered_map>

class SoNode;

namespace xsg
{

/// Tries a query's terms on one node after the other, and remembers for each node type which of its fields
/// they are about: the names of types and fields are compared once per type, not once per node.
class NodeMatcher
{
public:
    using Alternatives = std::shared_ptr<const std::vector<QueryTerms>>;

    /// The root is where paths start; null: at a node without parents.
    explicit NodeMatcher(Alternatives alternatives, const SoNode* root = nullptr);

    bool matches(const SoNode& node);

private:
    /// What a term asks of nodes of one type.
    struct Plan {
        bool typeMatches = false;
        std::vector<int> fields; // those to look at, by index
    };
    struct TypePlans {
        const char* type = nullptr; // the type's interned name
        int numFields = 0;          // also told apart by it, for types whose instances differ
        std::vector<Plan> plans;    // in the order of the terms
    };

    const TypePlans& plansFor(const SoNode& node);
    TypePlans makePlans(const SoNode& node) const;
    static Plan makePlan(const SoNode& node, const QueryTerm& term);
    bool holds(const SoNode& node, const QueryTerm& term, const Plan& plan);

    Alternatives m_alternatives;
    std::unordered_map<const char*, TypePlans> m_plans;
    const TypePlans* m_last = nullptr;
    std::unordered_map<const QueryTerm*, PlaceMatch> m_places; // of the terms that have a path
};

} // namespace xsg
