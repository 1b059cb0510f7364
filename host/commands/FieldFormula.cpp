// SPDX-License-Identifier: MIT
#include "commands/FieldFormula.h"

#include <scopix/editing/descriptions/SpxFieldDescription.h>
#include <xsg/core/SoMField.h>
#include <xsg/fields/SoMFMatrix.h>
#include <xsg/fields/SoMFRotation.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <cmath>
#include <memory>

namespace scopix
{

namespace
{

bool isInteger(const SoField& field)
{
    const std::string type = field.getTypeId().getName().getString();
    return type.find("Int") != std::string::npos || type.find("Short") != std::string::npos ||
           type.find("2s") != std::string::npos || type.find("3s") != std::string::npos ||
           type.find("i32") != std::string::npos;
}

std::string textOf(const SoField& field, int index)
{
    SbString text;
    if (index < 0)
        field.get(text);
    else
        static_cast<const SoMField&>(field).get1(index, text);
    return text.str();
}

bool setText(SoField& field, int index, const std::string& text)
{
    return index < 0 ? field.set(SbString(text)) : static_cast<SoMField&>(field).set1(index, SbString(text));
}

// None where the value is not made of numbers.
std::vector<double> numbersOf(const std::string& text)
{
    std::vector<double> numbers;
    xsg::TextReader in(text);
    in.skipBlanks();
    const bool isList = in.accept('[');
    for (double number = 0; !in.onlyBlanksLeft();) {
        if (isList && in.accept(']'))
            break;
        if (!in.readNumber(number))
            return {};
        numbers.push_back(number);
        in.skipSeparator();
    }
    return numbers;
}

template <class... Fields>
bool isOneOf(const SoField& field)
{
    return (... || (dynamic_cast<const Fields*>(&field) != nullptr));
}

// Where nobody knows what a field measures, or its numbers measure several things, the unit that is typed
// says it.
std::vector<SpxQuantity> quantitiesOf(const SoField& field)
{
    const SpxFieldDescription* known = SpxFieldDescription::find(field);
    if (known && !isOneOf<SoSFRotation, SoMFRotation, SoSFMatrix, SoMFMatrix>(field))
        return {known->quantity};
    return {isOneOf<SoSFTime>(field) ? SpxQuantity::Time : SpxQuantity::Number, SpxQuantity::Angle,
            SpxQuantity::Length};
}

bool evaluate(const std::string& text, double x, const std::vector<SpxQuantity>& quantities, double& number,
              std::string& problem)
{
    SpxExpressionSettings settings;
    settings.variables = {"x"};
    std::string first;
    for (const SpxQuantity quantity : quantities) {
        settings.quantity = quantity;
        const SpxExpression expression(text, settings);
        if (expression.isValid()) {
            number = expression.evaluate(&x);
            problem = std::isfinite(number) ? "" : "its result is no finite number";
            return problem.empty();
        }
        if (first.empty())
            first = expression.getError().sentence;
    }
    problem = first;
    while (!problem.empty() && problem.back() == '.')
        problem.pop_back();
    return false;
}

// One formula for each number: separated by commas, or by blanks where that many words stand there.
std::vector<std::string> formulasIn(const std::string& text, std::size_t count)
{
    if (count == 1)
        return {text};
    for (const char* separator : {",", " "}) {
        std::vector<std::string> formulas;
        std::size_t at = 0;
        while (at <= text.size()) {
            const std::size_t end = std::min(text.find(separator, at), text.size());
            const std::string_view part = xsg::trimmed(std::string_view(text).substr(at, end - at));
            if (!part.empty())
                formulas.emplace_back(part);
            at = end + 1;
        }
        if (formulas.size() == count)
            return formulas;
    }
    return {};
}

bool assignFormulas(SoField& field, int index, const std::string& text, std::string& problem)
{
    const std::vector<double> present = numbersOf(textOf(field, index));
    const std::string wrong = "it is no value of a " + std::string(field.getTypeId().getName().getString());
    const std::vector<std::string> formulas = formulasIn(text, present.size());
    problem =
        present.size() > 1 ? wrong + ", which has " + std::to_string(present.size()) + " numbers" : wrong;
    if (present.empty() || formulas.empty())
        return false;
    const std::vector<SpxQuantity> quantities = quantitiesOf(field);
    std::string result;
    for (std::size_t i = 0; i < present.size(); ++i) {
        double number = 0;
        if (!evaluate(formulas[i], present[i], quantities, number, problem))
            return false;
        result += i > 0 ? " " : "";
        // As the panel: to the nearest one, and in the type's own precision.
        if (isInteger(field))
            xsg::ValueText<double>::write(result, std::nearbyint(number));
        else
            xsg::ValueText<double>::write(result, number);
    }
    problem = wrong;
    if (!setText(field, index, result))
        return false;
    problem.clear();
    return true;
}

bool assignNodes(SoField& field, int index, const std::string& text, xsg::SceneLookup& lookup,
                 std::string& problem)
{
    xsg::TextReader in(text);
    in.skipBlanks();
    const bool isList = dynamic_cast<SoMFNode*>(&field) && index < 0;
    const bool hasBracket = isList && in.accept('[');
    std::vector<SoRef<SoNode>> nodes;
    SbSentence wrongPath;
    for (in.skipBlanks(); !in.atEnd() && in.peek() != ']'; in.skipSeparator()) {
        SoScenePath path;
        SoNode* node = nullptr;
        if (in.rest().substr(0, 4) == "NULL")
            in.skip(4);
        else if (!SoScenePath::read(in, path, wrongPath) || !(node = lookup.find(path, wrongPath))) {
            problem = wrongPath;
            return false;
        }
        nodes.emplace_back(node);
    }
    problem = "the path of a node, or NULL, was expected";
    if ((hasBracket && !in.accept(']')) || !in.onlyBlanksLeft() || (!isList && nodes.size() != 1))
        return false;
    if (isList)
        static_cast<SoMFNode&>(field).setValues(std::move(nodes));
    else if (index >= 0)
        static_cast<SoMFNode&>(field).set1Value(index, nodes.front());
    else
        static_cast<SoSFNode&>(field).setValue(nodes.front());
    problem.clear();
    return true;
}

bool assignValue(SoField& field, int index, const std::string& text, std::string& problem)
{
    if (setText(field, index, text))
        return true;
    if (dynamic_cast<SoMField*>(&field) && index < 0 && static_cast<SoMField&>(field).getNum() != 1) {
        problem = "it is no value of a " + std::string(field.getTypeId().getName().getString());
        return false;
    }
    return assignFormulas(field, index, text, problem);
}

std::string shortText(double number)
{
    std::string text;
    xsg::ValueText<float>::write(text, float(number));
    return text;
}

// What is typed in the panel is kept within the same limits. Compared as single precision, in which pi is
// above pi.
std::string reasonAgainst(const SpxFieldDescription& known, const std::vector<double>& numbers)
{
    const bool hasHigh = std::isfinite(known.hardHigh);
    for (const double number : numbers) {
        if (float(number) >= float(known.hardLow) && float(number) <= float(known.hardHigh))
            continue;
        if (std::isfinite(known.hardLow))
            return "it has to be " + shortText(known.hardLow) +
                   (hasHigh ? " to " + shortText(known.hardHigh) : " or more");
        return "it has to be " + shortText(known.hardHigh) + " or less";
    }
    return {};
}

} // namespace

bool assign(SoField& field, int index, const std::string& text, xsg::SceneLookup& lookup,
            std::string& problem)
{
    if (isOneOf<SoSFNode, SoMFNode>(field))
        return assignNodes(field, index, text, lookup, problem);
    const std::string before = textOf(field, -1);
    const bool wasDefault = field.isDefault();
    if (!assignValue(field, index, text, problem))
        return false;
    const SpxFieldDescription* known = SpxFieldDescription::find(field);
    if (known)
        problem = reasonAgainst(*known, numbersOf(textOf(field, index)));
    if (problem.empty())
        return true;
    setText(field, -1, before);
    field.setDefault(wasDefault);
    return false;
}

} // namespace scopix
