// SPDX-License-Identifier: MIT
#include <xsg/core/SoMField.h>

#include <xsg/core/SoSField.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

template class SoTyped<SoSField, SoField>;
template class SoTyped<SoMField, SoField>;

void SoSField::writePlain(std::string& out, int /*value*/) const
{
    SbString text;
    get(text);
    out += text.str();
}

bool SoSField::assignFromText(const std::vector<std::string>& texts)
{
    return !texts.empty() && parse(texts.front());
}

void SoMField::get(SbString& text) const
{
    evaluate();
    std::string& out = text.edit();
    out = "[ ";
    writeValues(out);
    out += count() > 0 ? " ]" : "]";
}

int SoMField::getNum() const
{
    evaluate();
    return count();
}

// False, with an SoMemoryError, where there is no memory to change the field to `wanted` values.
template <class Change>
bool SoMField::hasMemoryTo(Change change, int wanted)
{
    try {
        change();
        return true;
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    SoMemoryError::post(SbSentence("the values of the field \"%1\"", getName().getString()),
                        static_cast<std::size_t>(wanted) * bytesPerValue());
    return false;
}

bool SoMField::grow(int wanted)
{
    return hasMemoryTo([&] { resize(wanted); }, wanted);
}

void SoMField::valuesGrown(int before, int first, int last)
{
    const int start = std::min(before, first);
    valueWritten(start, last - start + 1);
}

void SoMField::setNum(int wanted)
{
    evaluate();
    const int before = count();
    aboutToWrite(std::min(before, std::max(wanted, 0)));
    if (grow(std::max(wanted, 0)))
        valueWritten(std::min(before, count()), -1);
}

bool SoMField::get1(int index, SbString& text) const
{
    evaluate();
    std::string& out = text.edit();
    out.clear();
    if (index < 0 || index >= count())
        return false;
    writeValue(out, index);
    return true;
}

bool SoMField::set1(int index, const SbString& text)
{
    if (index < 0 || index == std::numeric_limits<int>::max())
        return false;
    evaluate();
    const int before = count();
    aboutToWrite(std::min(index, before), index < before ? 1 : 0);
    if (!parseValue(text.str(), index))
        return false;
    valuesGrown(before, index, index);
    return true;
}

void SoMField::insertSpace(int start, int number)
{
    evaluate();
    const int before = count();
    if (number <= 0 || number > std::numeric_limits<int>::max() - before)
        return;
    const int first = std::clamp(start, 0, before);
    aboutToWrite(first, 0);
    if (hasMemoryTo([&] { open(first, number); }, before + number))
        valueWritten(first, -1);
}

void SoMField::deleteValues(int start, int number)
{
    evaluate();
    const int n = count();
    const long long last = number < 0 ? n : std::min<long long>(n, static_cast<long long>(start) + number);
    const int first = std::clamp(start, 0, n);
    if (last <= first)
        return;
    aboutToWrite(first, static_cast<int>(last) - first);
    close(first, static_cast<int>(last) - first);
    valueWritten(first, -1);
}

bool SoMField::holds(int start, int number) const
{
    return start >= 0 && number >= 0 && start <= count() && number <= count() - start;
}

bool SoMField::replaceValues(int start, int removed, const SoMField& from, int fromStart, int inserted)
{
    evaluate();
    from.evaluate();
    if (!holdsSameValues(from) || !from.holdsSameValues(*this) || !holds(start, removed) ||
        !from.holds(fromStart, inserted))
        return false;
    const int others = count() - removed;
    if (inserted > std::numeric_limits<int>::max() - others)
        return false;
    aboutToWrite(start, removed);
    if (!hasMemoryTo([&] { splice(start, removed, from, fromStart, inserted); }, others + inserted))
        return false;
    valueWritten(start, removed == inserted ? inserted : -1);
    return true;
}

bool SoMField::isSameValue(int index, const SoMField& other, int otherIndex) const
{
    evaluate();
    other.evaluate();
    return holdsSameValues(other) && other.holdsSameValues(*this) && holds(index, 1) &&
           other.holds(otherIndex, 1) && isSameAt(index, other, otherIndex);
}

std::unique_ptr<SoMField> SoMField::makeSlice() const
{
    std::unique_ptr<SoTypedObject> object(getTypeId().createInstance());
    auto* slice = dynamic_cast<SoMField*>(object.get());
    if (slice)
        static_cast<void>(object.release());
    return std::unique_ptr<SoMField>(slice);
}

void SoMField::valueChanged(int start, int number, bool isWritten)
{
    aboutToWrite(start, 0);
    const bool wasDefault = isDefault();
    valueWritten(start, number);
    if (!isWritten)
        setDefault(wasDefault);
}
