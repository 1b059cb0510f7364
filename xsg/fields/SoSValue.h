// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoSField.h>
#include <xsg/values/SbValueText.h>

/// The template behind every single-value field whose value is a plain type with an xsg::ValueText.
///
/// Base lets a field derive from another field's class; it is SoSField for most.
template <class T, class Base = SoSField>
class XSG_API SoSValue : public Base
{
public:
    using Value = T;

    const T& getValue() const
    {
        this->evaluate();
        return m_value;
    }
    void setValue(const T& value)
    {
        this->aboutToWrite();
        m_value = value;
        this->valueWritten();
    }
    /// The components one by one: setValue(x, y), setValue(xmin, ymin, zmin, xmax, ymax, zmax), ...
    template <class A, class B, class... Rest>
    void setValue(A a, B b, Rest... rest)
    {
        setValue(T(scalar(a), scalar(b), scalar(rest)...));
    }

    void get(SbString& text) const override;
    bool isSame(const SoField& other) const override;

protected:
    explicit SoSValue(SoFieldContainer* owner = nullptr, const char* name = nullptr, const T& value = T())
        : Base(owner, name)
        , m_value(value)
    {
    }
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

private:
    template <class, class>
    friend class SoMValue;
    template <class A>
    static auto scalar(A a)
    {
        return static_cast<typename T::Scalar>(a);
    }

    T m_value;
};
