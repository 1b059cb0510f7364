// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/paths/SoScenePath.h>

#include <optional>
#include <string>
#include <vector>

namespace xsg
{

/// One thing that a query asks of a node. Texts are in UTF-8, and lower case where case does not matter.
struct QueryTerm {
    enum class Kind {
        Word,      // in the name, in the type's name or in a textual field, or the place of a path
        Place,     // where a path leads
        Name,      // in the name
        Type,      // in the type's name, or in that of a type it is derived from
        Field,     // in the name of a field
        Value,     // in the text of a value of any field
        Compare,   // a field against a value
        Changed,   // a field has a value of its own
        Connected, // a field follows another one
        Ignored,   // a field is ignored
        Shared,    // the node stands in more than one place
    };
    enum class Sign { Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual, Contains };

    Kind kind = Kind::Word;
    bool negated = false;
    std::string text;
    std::string field;               // Compare: which one
    int component = -1;              // Compare: of the field's numbers this one; -1: any
    Sign sign = Sign::Equal;         // Compare
    std::vector<double> numbers;     // Compare: the text as numbers, empty where it is none
    std::optional<SoScenePath> path; // Place, and Word where it can be one
};

/// All of them must hold.
using QueryTerms = std::vector<QueryTerm>;

} // namespace xsg
