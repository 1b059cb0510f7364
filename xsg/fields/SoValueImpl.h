// SPDX-License-Identifier: MIT
// The bodies of SoSValue and SoMValue, for the source files that instantiate fields:
//
//     template class SoSValue<float>;
//     template class SoTyped<SoSFFloat, SoSValue<float>>;
#pragma once

#include <xsg/fields/NumberLists.h>
#include <xsg/fields/SoMValue.h>
#include <xsg/fields/SoSValue.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/ValueNumbers.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace xsg
{

template <class T>
constexpr bool isTextual = std::is_same_v<T, SbString> || std::is_same_v<T, SbName>;

inline std::string_view plainText(const SbString& text)
{
    return text.str();
}
inline std::string_view plainText(SbName name)
{
    return name.getString();
}

/// A text without quotes stands for itself, blanks inside included.
template <class T>
bool readWholeText(std::string_view text, T& value)
{
    if constexpr (isTextual<T>) {
        const std::string_view bare = trimmed(text);
        if (bare.empty() || bare.front() == '"' || bare.find('\0') != std::string_view::npos)
            return false;
        value = T(SbString(bare));
        return true;
    } else {
        return false;
    }
}

/// One value and nothing after it.
template <class T>
bool readOnly(std::string_view text, T& value)
{
    T parsed{};
    TextReader in(text);
    if (!readWholeText(text, parsed) && !(ValueText<T>::read(in, parsed) && in.onlyBlanksLeft()))
        return false;
    value = std::move(parsed);
    return true;
}

/// A list in brackets, or one value without them. readOne(in, value) reads one value of a list,
/// readAlone(text, value) one that stands alone. False leaves `values` as they were.
template <class T, class ReadOne, class ReadAlone>
bool readValues(std::string_view text, std::vector<T>& values, ReadOne readOne, ReadAlone readAlone)
{
    std::vector<T> parsed;
    TextReader in(text);
    in.skipBlanks();
    if (!in.accept('[')) {
        T value{};
        if (!readAlone(text, value))
            return false;
        parsed.push_back(std::move(value));
    } else {
        in.skipBlanks();
        while (!in.accept(']')) {
            T value{};
            if (!readOne(in, value) || !in.atValueEnd())
                return false;
            parsed.push_back(std::move(value));
            in.skipSeparator();
        }
        if (!in.onlyBlanksLeft())
            return false;
    }
    values = std::move(parsed);
    return true;
}

template <class T, class WriteOne>
void writeValues(std::string& out, const std::vector<T>& values, WriteOne writeOne)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            out.append(", ", 2);
        writeOne(out, values[i]);
    }
}

/// Bit for bit for plain numbers, so that a field of NaN equals itself.
template <class T>
bool sameValue(const T& a, const T& b)
{
    if constexpr (std::is_trivially_copyable_v<T> && !std::is_same_v<T, SbName>)
        return std::memcmp(&a, &b, sizeof(T)) == 0;
    else
        return a == b;
}

} // namespace xsg

template <class T, class Base>
void SoSValue<T, Base>::get(SbString& text) const
{
    this->evaluate();
    std::string& out = text.edit();
    out.clear();
    xsg::ValueText<T>::write(out, m_value);
}

template <class T, class Base>
bool SoSValue<T, Base>::parse(std::string_view text)
{
    return xsg::readOnly(text, m_value);
}

template <class T, class Base>
bool SoSValue<T, Base>::isSame(const SoField& other) const
{
    if (other.getTypeId() != this->getTypeId())
        return false;
    this->evaluate();
    other.evaluate();
    return xsg::sameValue(m_value, static_cast<const SoSValue&>(other).m_value);
}

template <class T, class Base>
void SoSValue<T, Base>::assign(const SoField& sameType)
{
    m_value = static_cast<const SoSValue&>(sameType).m_value;
}

template <class T, class Base>
int SoSValue<T, Base>::numbersPerValue() const
{
    return xsg::ValueNumbers<T>::Count;
}

template <class T, class Base>
double SoSValue<T, Base>::number(int /*value*/, int which) const
{
    return xsg::ValueNumbers<T>::get(m_value, which);
}

template <class T, class Base>
void SoSValue<T, Base>::takeNumbers(const SoField& sameShape)
{
    for (int i = 0; i < xsg::ValueNumbers<T>::Count; ++i)
        xsg::ValueNumbers<T>::set(m_value, i, this->numberOf(sameShape, 0, i));
}

template <class T, class Base>
bool SoSValue<T, Base>::isTextual() const
{
    return xsg::isTextual<T>;
}

template <class T, class Base>
void SoSValue<T, Base>::writePlain(std::string& out, int value) const
{
    if constexpr (xsg::isTextual<T>)
        out += xsg::plainText(m_value);
    else
        Base::writePlain(out, value);
}

template <class T, class Base>
bool SoSValue<T, Base>::assignFromText(const std::vector<std::string>& texts)
{
    if constexpr (xsg::isTextual<T>) {
        if (texts.empty())
            return false;
        m_value = T(SbString(texts.front()));
        return true;
    } else {
        return Base::assignFromText(texts);
    }
}

template <class T, class Base>
bool SoSValue<T, Base>::hasSameValues(const SoField& other) const
{
    return dynamic_cast<const SoSValue*>(&other) || dynamic_cast<const SoMValue<T>*>(&other);
}

template <class T, class Base>
bool SoSValue<T, Base>::takeSameValues(const SoField& other)
{
    if (const auto* single = dynamic_cast<const SoSValue*>(&other)) {
        m_value = single->m_value;
        return true;
    }
    const auto& values = dynamic_cast<const SoMValue<T>&>(other).m_values;
    if (values.empty())
        return false;
    m_value = values.front();
    return true;
}

template <class T, class Base>
void SoMValue<T, Base>::set1Value(int index, const T& value)
{
    if (index < 0 || index == std::numeric_limits<int>::max())
        return;
    this->evaluate();
    const int before = count();
    // A copy: the value may be one of this field's own.
    if (storeAt(index, T(value)))
        this->valuesGrown(before, index, index);
}

template <class T, class Base>
bool SoMValue<T, Base>::storeAt(int index, T value)
{
    if (index >= count() && !this->grow(index + 1))
        return false;
    m_values[static_cast<std::size_t>(index)] = std::move(value);
    return true;
}

template <class T, class Base>
void SoMValue<T, Base>::setValues(int start, int number, const T* values)
{
    if (start < 0 || number <= 0 || number > std::numeric_limits<int>::max() - start)
        return;
    this->evaluate();
    const int before = count();
    if (start + number > before && !this->grow(start + number))
        return;
    std::copy_n(values, number, m_values.begin() + start);
    this->valuesGrown(before, start, start + number - 1);
}

template <class T, class Base>
void SoMValue<T, Base>::open(int start, int number)
{
    m_values.insert(m_values.begin() + start, static_cast<std::size_t>(number), T{});
}

template <class T, class Base>
void SoMValue<T, Base>::close(int start, int number)
{
    m_values.erase(m_values.begin() + start, m_values.begin() + start + number);
}

template <class T, class Base>
bool SoMValue<T, Base>::holdsSameValues(const SoMField& other) const
{
    return other.getTypeId() == this->getTypeId() || hasSameValues(other);
}

template <class T, class Base>
void SoMValue<T, Base>::splice(int start, int removed, const SoMField& from, int fromStart, int inserted)
{
    const auto& source = dynamic_cast<const SoMValue&>(from).m_values;
    // A copy of the field's own values: they move while they are replaced.
    std::vector<T> own;
    if (&source == &m_values)
        own.assign(source.begin() + fromStart, source.begin() + fromStart + inserted);
    const auto first = &source == &m_values ? own.cbegin() : source.cbegin() + fromStart;
    // The common part is assigned, only the rest moves what lies behind it.
    const int common = std::min(removed, inserted);
    if (inserted > removed)
        m_values.insert(m_values.begin() + start + removed, first + common, first + inserted);
    else
        close(start + inserted, removed - inserted);
    std::copy_n(first, common, m_values.begin() + start);
}

template <class T, class Base>
void SoMValue<T, Base>::writeValue(std::string& out, int index) const
{
    xsg::ValueText<T>::write(out, m_values[static_cast<std::size_t>(index)]);
}

template <class T, class Base>
void SoMValue<T, Base>::writeValues(std::string& out) const
{
    if constexpr (xsg::isRowOfNumbers<T>)
        xsg::writeNumbers(out, m_values);
    else
        xsg::writeValues(out, m_values,
                         [](std::string& text, const T& value) { xsg::ValueText<T>::write(text, value); });
}

template <class T, class Base>
bool SoMValue<T, Base>::parseValue(std::string_view text, int index)
{
    T value{};
    return xsg::readOnly(text, value) && storeAt(index, std::move(value));
}

template <class T, class Base>
bool SoMValue<T, Base>::parse(std::string_view text)
{
    const auto readOne = [](xsg::TextReader& in, T& value) { return xsg::ValueText<T>::read(in, value); };
    return xsg::readValues(text, m_values, readOne, xsg::readOnly<T>);
}

template <class T, class Base>
bool SoMValue<T, Base>::isSame(const SoField& other) const
{
    if (other.getTypeId() != this->getTypeId())
        return false;
    this->evaluate();
    other.evaluate();
    const auto& others = static_cast<const SoMValue&>(other).m_values;
    return std::equal(m_values.begin(), m_values.end(), others.begin(), others.end(), xsg::sameValue<T>);
}

template <class T, class Base>
void SoMValue<T, Base>::assign(const SoField& sameType)
{
    m_values = static_cast<const SoMValue&>(sameType).m_values;
}

template <class T, class Base>
int SoMValue<T, Base>::numbersPerValue() const
{
    return xsg::ValueNumbers<T>::Count;
}

template <class T, class Base>
double SoMValue<T, Base>::number(int value, int which) const
{
    return xsg::ValueNumbers<T>::get(m_values[static_cast<std::size_t>(value)], which);
}

template <class T, class Base>
void SoMValue<T, Base>::takeNumbers(const SoField& sameShape)
{
    m_values.resize(static_cast<std::size_t>(this->countOf(sameShape)));
    for (int value = 0; value < count(); ++value) {
        for (int i = 0; i < xsg::ValueNumbers<T>::Count; ++i)
            xsg::ValueNumbers<T>::set(m_values[static_cast<std::size_t>(value)], i,
                                      this->numberOf(sameShape, value, i));
    }
}

template <class T, class Base>
bool SoMValue<T, Base>::isTextual() const
{
    return xsg::isTextual<T>;
}

template <class T, class Base>
void SoMValue<T, Base>::writePlain(std::string& out, int value) const
{
    if constexpr (xsg::isTextual<T>)
        out += xsg::plainText(m_values[static_cast<std::size_t>(value)]);
    else
        Base::writePlain(out, value);
}

template <class T, class Base>
bool SoMValue<T, Base>::assignFromText(const std::vector<std::string>& texts)
{
    std::vector<T> values(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if constexpr (xsg::isTextual<T>)
            values[i] = T(SbString(texts[i]));
        else if (!xsg::readOnly(texts[i], values[i]))
            return false;
    }
    m_values = std::move(values);
    return true;
}

template <class T, class Base>
bool SoMValue<T, Base>::hasSameValues(const SoField& other) const
{
    return dynamic_cast<const SoMValue*>(&other) || dynamic_cast<const SoSValue<T>*>(&other);
}

template <class T, class Base>
bool SoMValue<T, Base>::takeSameValues(const SoField& other)
{
    if (const auto* list = dynamic_cast<const SoMValue*>(&other))
        m_values = list->m_values;
    else
        m_values.assign(1, dynamic_cast<const SoSValue<T>&>(other).m_value);
    return true;
}
