// The bodies of SoSValue and SoMValue, for the source files that instantiate fields:
//
//     template class SoSValue<float>;
//     template class SoTyped<SoSFFloat, SoSValue<float>>;
#pragma once

#include <xsg/core/SoTypedImpl.h>
#include <xsg/fields/SoMValue.h>
#include <xsg/fields/SoSValue.h>

#include <algorithm>
#include <cstring>

namespace xsg
{

template <class T>
constexpr bool isTextual = std::is_same_v<T, SbString> || std::is_same_v<T, SbName>;

inline std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && XsgTextReader::isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && XsgTextReader::isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// A text without quotes stands for itself, blanks inside included.
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

// One value and nothing after it.
template <class T>
bool readOnly(std::string_view text, T& value)
{
    T parsed{};
    XsgTextReader in(text);
    if (!readWholeText(text, parsed) && !(XsgText<T>::read(in, parsed) && in.onlyBlanksLeft()))
        return false;
    value = std::move(parsed);
    return true;
}

template <class T>
bool readList(XsgTextReader& in, std::vector<T>& values)
{
    while (true) {
        in.skipSeparator();
        if (in.accept(']'))
            return in.onlyBlanksLeft();
        T value{};
        if (!XsgText<T>::read(in, value))
            return false;
        values.push_back(std::move(value));
    }
}

// Bit for bit for plain numbers, so that a field of NaN equals itself.
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
    XsgText<T>::write(out, m_value);
}

template <class T, class Base>
bool SoSValue<T, Base>::set(const SbString& text)
{
    if (!xsg::readOnly(text.str(), m_value))
        return false;
    this->valueWritten();
    return true;
}

template <class T, class Base>
bool SoSValue<T, Base>::isSame(const SoField& other) const
{
    if (other.getTypeId() != this->getTypeId())
        return false;
    return xsg::sameValue(getValue(), static_cast<const SoSValue&>(other).getValue());
}

template <class T, class Base>
void SoSValue<T, Base>::assign(const SoField& sameType)
{
    m_value = static_cast<const SoSValue&>(sameType).m_value;
}

template <class T, class Base>
void SoMValue<T, Base>::set1Value(int index, const T& value)
{
    if (index < 0)
        return;
    this->evaluate();
    const int before = count();
    if (index >= before)
        resize(index + 1);
    m_values[static_cast<std::size_t>(index)] = value;
    this->valueWritten(std::min(index, before), 1 + index - std::min(index, before));
}

template <class T, class Base>
void SoMValue<T, Base>::setValues(int start, int number, const T* values)
{
    if (start < 0 || number <= 0)
        return;
    this->evaluate();
    if (start + number > count())
        resize(start + number);
    std::copy_n(values, number, m_values.begin() + start);
    this->valueWritten(start, number);
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
void SoMValue<T, Base>::writeValue(std::string& out, int index) const
{
    XsgText<T>::write(out, m_values[static_cast<std::size_t>(index)]);
}

template <class T, class Base>
bool SoMValue<T, Base>::readValue(XsgTextReader& in, int index)
{
    T value{};
    if (!XsgText<T>::read(in, value) || !in.onlyBlanksLeft())
        return false;
    m_values[static_cast<std::size_t>(index)] = std::move(value);
    return true;
}

template <class T, class Base>
bool SoMValue<T, Base>::readWhole(std::string_view text, int index)
{
    return xsg::readWholeText(text, m_values[static_cast<std::size_t>(index)]);
}

template <class T, class Base>
bool SoMValue<T, Base>::readAll(XsgTextReader& in)
{
    std::vector<T> values;
    in.skipBlanks();
    if (in.accept('[')) {
        if (!xsg::readList(in, values))
            return false;
    } else {
        T value{};
        if (!xsg::readOnly(in.rest(), value))
            return false;
        values.push_back(std::move(value));
    }
    m_values = std::move(values);
    return true;
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
