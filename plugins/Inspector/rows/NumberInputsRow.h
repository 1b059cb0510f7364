// SPDX-License-Identifier: MIT
#pragma once

#include "fields/PanelSettings.h"
#include "rows/NumberEdit.h"
#include "rows/Row.h"

namespace inspector
{

/// Base of the rows with inputs for numbers: a drag is one step however often it writes, and what is typed is
/// one. A derived class says how a number is read, written and shown. GUI thread only.
class NumberInputsRow : public Row
{
    Q_OBJECT

public:
    void finish() override;

protected:
    using Row::Row;

    virtual double shownNumber(int which) const = 0;
    virtual QString shownText(int which) const = 0;
    virtual void writeNumber(int which, double number) = 0;
    /// Text that is no number but a whole value, such as #1a6090.
    virtual bool takeText(const QString& /*text*/) { return false; }

    NumberEdit* addNumber(const NumberFormat& format, const QString& part);
    const QList<NumberEdit*>& numbers() const { return m_numbers; }
    /// With the digits that the user wants; without a wish the shortest text that reads back to the number as
    /// the field holds it.
    QString numberText(double number) const;
    QString floatText(float number) const;
    void showValue() override;
    bool isBusy() const override;

private:
    void dragBegan(int which);
    void dragged(int which, double number);
    bool isMixedNumber(int which);
    void dragEnded(bool keep);

    QList<NumberEdit*> m_numbers;
    const int m_digits = PanelSettings::digits();
    std::vector<double> m_starts; // of a drag: each field's number before
};

/// A format for one number of a field: the limits of its type and of its description.
NumberFormat formatOf(const SoField& field);
/// "45°", rounded to what single precision holds.
QString degreesText(double degrees);

} // namespace inspector
