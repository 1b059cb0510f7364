// SPDX-License-Identifier: MIT
#include "FieldMatch.h"

#include "QueryText.h"

#include <xsg/fields/SoMFName.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

#include <algorithm>
#include <cmath>

namespace xsg
{

namespace
{

using Sign = QueryTerm::Sign;

// Whether `test` holds for the text of the value, or of one of the values. No more of them is turned into
// text than it takes.
template <class Test>
bool anyValue(const SoField& field, Test test)
{
    SbString text;
    if (field.isOfType(SoSFImage::getClassTypeId()))
        return false;
    if (field.isOfType(SoMField::getClassTypeId())) {
        const auto& list = static_cast<const SoMField&>(field);
        const int count = list.getNum();
        for (int i = 0; i < count; ++i) {
            if (list.get1(i, text) && test(text.str()))
                return true;
        }
        return false;
    }
    field.get(text);
    return test(text.str());
}

std::string_view withoutQuotes(std::string_view text)
{
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool compares(double value, Sign sign, double with)
{
    switch (sign) {
    case Sign::Less:
        return value < with;
    case Sign::LessOrEqual:
        return value <= with;
    case Sign::Greater:
        return value > with;
    case Sign::GreaterOrEqual:
        return value >= with;
    default:
        return sameNumber(value, with);
    }
}

bool numbersCompare(const std::vector<double>& numbers, const QueryTerm& term)
{
    if (term.component >= 0) {
        const auto at = static_cast<std::size_t>(term.component);
        return at < numbers.size() && compares(numbers[at], term.sign, term.numbers.front());
    }
    if (term.numbers.size() > 1)
        return std::equal(numbers.begin(), numbers.end(), term.numbers.begin(), term.numbers.end(),
                          sameNumber);
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](double each) { return compares(each, term.sign, term.numbers.front()); });
}

bool valueCompares(const std::string& value, const QueryTerm& term)
{
    if (term.sign == Sign::Contains)
        return containsIgnoringCase(value, term.text);
    if (!term.numbers.empty()) {
        const std::vector<double> numbers = numbersOf(withoutQuotes(value));
        if (!numbers.empty())
            return numbersCompare(numbers, term);
    }
    const bool canBeEqual = term.sign == Sign::Equal || term.sign == Sign::Unequal;
    return canBeEqual && equalsIgnoringCase(withoutQuotes(value), term.text);
}

} // namespace

bool comparesTo(const SoField& field, const QueryTerm& term)
{
    const bool found = anyValue(field, [&](const std::string& value) { return valueCompares(value, term); });
    return found != (term.sign == Sign::Unequal);
}

bool valueContains(const SoField& field, const std::string& lower)
{
    return anyValue(field, [&](const std::string& value) { return containsIgnoringCase(value, lower); });
}

bool holdsText(const SoField& field)
{
    return field.isOfType(SoSFString::getClassTypeId()) || field.isOfType(SoSFName::getClassTypeId()) ||
           field.isOfType(SoMFString::getClassTypeId()) || field.isOfType(SoMFName::getClassTypeId());
}

} // namespace xsg
