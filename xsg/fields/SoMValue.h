// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoMField.h>
#include <xsg/values/SbValueText.h>

#include <initializer_list>
#include <vector>

/// The template behind every multi-value field whose values are a plain type with an xsg::ValueText.
template <class T, class Base = SoMField>
class XSG_API SoMValue : public Base
{
public:
    using Value = T;

    /// Pointer to value `start`; the values lie one after the other. Valid until the field changes.
    const T* getValues(int start = 0) const
    {
        this->evaluate();
        return m_values.data() + start;
    }
    const T& operator[](int index) const
    {
        this->evaluate();
        return m_values[static_cast<std::size_t>(index)];
    }
    /// Makes this the only value.
    void setValue(const T& value)
    {
        m_values.assign(1, value);
        this->valueWritten();
    }
    /// An index past the end grows the field; a negative one does nothing.
    void set1Value(int index, const T& value);
    void setValues(int start, int number, const T* values);
    /// Takes over the whole list without copying it.
    void setValues(std::vector<T> values)
    {
        m_values = std::move(values);
        this->valueWritten();
    }
    /// Direct writing of many values: change what startEditing() gives, then call finishEditing().
    T* startEditing()
    {
        this->evaluate();
        return m_values.data();
    }
    void finishEditing() { this->valueWritten(); }

    bool isSame(const SoField& other) const override;

protected:
    explicit SoMValue(SoFieldContainer* owner = nullptr, const char* name = nullptr,
                      std::initializer_list<T> values = {})
        : Base(owner, name)
        , m_values(values)
    {
    }
    int count() const override { return static_cast<int>(m_values.size()); }
    void resize(int count) override { m_values.resize(static_cast<std::size_t>(count)); }
    void open(int start, int count) override;
    void close(int start, int count) override;
    std::size_t bytesPerValue() const override { return sizeof(T); }
    bool holdsSameValues(const SoMField& other) const override;
    void splice(int start, int removed, const SoMField& from, int fromStart, int inserted) override;
    void writeValue(std::string& out, int index) const override;
    void writeValues(std::string& out) const override;
    bool parseValue(std::string_view text, int index) override;
    bool parse(std::string_view text) override;
    void assign(const SoField& sameType) override;
    int numbersPerValue() const override;
    double number(int value, int which) const override;
    void takeNumbers(const SoField& sameShape) override;
    bool isTextual() const override;
    void writePlain(std::string& out, int value) const override;
    bool assignFromText(const std::vector<std::string>& texts) override;
    bool hasSameValues(const SoField& other) const override;
    bool takeSameValues(const SoField& other) override;

    /// For a class whose values have a text form of its own.
    const std::vector<T>& rawValues() const { return m_values; }
    void takeRawValues(std::vector<T> values) { m_values = std::move(values); }
    bool storeAt(int index, T value);

private:
    template <class, class>
    friend class SoSValue;
    std::vector<T> m_values;
};
