// SPDX-License-Identifier: MIT
#include "EdValidators.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace
{

// Further digits only take a number further from 0, and a number without a sign may still get one in front.
template <class Number>
bool isOutOfReach(Number value, bool isNegative, Number bottom, Number top)
{
    return isNegative ? value < bottom : value > top && -value < bottom;
}

} // namespace

void useCLocale(QValidator& validator)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    validator.setLocale(locale);
}

EdIntValidator::EdIntValidator(QObject* parent)
    : QIntValidator(parent)
{
    useCLocale(*this);
}

EdIntValidator::EdIntValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent)
{
    useCLocale(*this);
}

QValidator::State EdIntValidator::validate(QString& text, int& position) const
{
    const State state = QIntValidator::validate(text, position);
    bool ok = false;
    const qlonglong value = text.toLongLong(&ok);
    if (state != Intermediate || !ok)
        return state;
    return isOutOfReach<qlonglong>(value, value < 0, bottom(), top()) ? Invalid : state;
}

EdRealValidator::EdRealValidator(double bottom, double top, int decimals, QObject* parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    useCLocale(*this);
}

EdRealValidator* EdRealValidator::forFloat(QObject* parent)
{
    constexpr double Limit = std::numeric_limits<float>::max();
    return new EdRealValidator(-Limit, Limit, 6, parent);
}

EdRealValidator* EdRealValidator::forDouble(QObject* parent)
{
    constexpr double Limit = std::numeric_limits<double>::max();
    return new EdRealValidator(-Limit, Limit, 15, parent);
}

QValidator::State EdRealValidator::validate(QString& text, int& position) const
{
    const State state = QDoubleValidator::validate(text, position);
    if (state != Intermediate)
        return state;
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (std::isinf(value))
        return Invalid;
    return ok && isOutOfReach(value, value < 0, bottom(), top()) ? Invalid : state;
}
