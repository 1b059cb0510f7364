// SPDX-License-Identifier: MIT
#pragma once

#include "EdNumberSlider.h"

/// What the sliders of signed and unsigned integers share: the number base. It is chosen by the first value
/// shown ("0x1F" is base 16, "07" base 8) and then stays.
template <class Integer>
class EdIntegerSlider : public EdNumberSlider<Integer>
{
public:
    using EdNumberSlider<Integer>::EdNumberSlider;

    void setValue(QString text) override
    {
        if (m_firstValue)
            chooseRadix(text);
        m_firstValue = false;
        this->showFieldText(inRadix(text));
    }
    void updateEdit() override { this->displayText(numberText()); }

protected:
    virtual Integer toInteger(const QString& text, int radix, bool& ok) const = 0;
    virtual void radixChosen() {}
    QString numberText() const { return QString::number(this->getNumber(), this->radix()); }

private:
    /// Only a text of exactly two characters is read as octal (decisions.md: two-character-octal).
    void chooseRadix(const QString& text)
    {
        if (text.size() > 2 && text.startsWith(QLatin1String("0x")))
            this->setRadix(16);
        else if (text.size() == 2 && text.startsWith(QLatin1Char('0')))
            this->setRadix(8);
        radixChosen();
    }
    /// A text without the prefix of the slider's base is a decimal one.
    QString inRadix(const QString& text) const
    {
        const int radix = this->radix();
        if (radix == 10)
            return text;
        const QLatin1String prefix(radix == 8 ? "0" : "0x");
        if (text.startsWith(prefix) && text.size() > prefix.size())
            return text.mid(prefix.size());
        bool ok = false;
        const Integer value = toInteger(text, 10, ok);
        return ok ? QString::number(value, radix) : text;
    }

    bool m_firstValue = true;
};
