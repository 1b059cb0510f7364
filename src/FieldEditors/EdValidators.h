// SPDX-License-Identifier: MIT
// Validators for typed numbers: C locale, no group separators, and nothing beyond their range can be typed,
// where the stock ones take a number that is too large as "not finished yet".
#pragma once

#include <QDoubleValidator>
#include <QIntValidator>

/// Reads and refuses numbers as the C locale without group separators does.
void useCLocale(QValidator& validator);

class EdIntValidator : public QIntValidator
{
public:
    /// Every int.
    explicit EdIntValidator(QObject* parent = nullptr);
    EdIntValidator(int bottom, int top, QObject* parent = nullptr);

    State validate(QString& text, int& position) const override;
};

class EdRealValidator : public QDoubleValidator
{
public:
    EdRealValidator(double bottom, double top, int decimals, QObject* parent = nullptr);
    /// What the type holds, with the decimals that the editors let the user type.
    static EdRealValidator* forFloat(QObject* parent);
    static EdRealValidator* forDouble(QObject* parent);

    State validate(QString& text, int& position) const override;
};
