// SPDX-License-Identifier: MIT
#pragma once

#include "rows/NumberInputsRow.h"

#include <QColor>
#include <QPointer>

class QColorDialog;
class QPushButton;

namespace inspector
{

/// A colour: a swatch that opens a live picker, and the numbers of red, green and blue, from 0 to 1 as they
/// are stored.
class ColorRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit ColorRow(SoField* field);
    ~ColorRow() override;

protected:
    void build() override;
    void showValue() override;
    bool isBusy() const override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
    bool takeText(const QString& text) override;

private:
    void openPicker();
    void take(const QColor& color, const QColor& reference);
    void close(bool keep);
    QColor color() const;

    QPushButton* m_swatch = nullptr;
    QPointer<QColorDialog> m_picker;
    QColor m_picked; // the channels that the picker began with, or had last
};

} // namespace inspector
