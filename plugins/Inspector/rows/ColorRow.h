// SPDX-License-Identifier: MIT
#pragma once

#include "fields/ColorParts.h"
#include "fields/PanelSettings.h"
#include "rows/NumberInputsRow.h"

#include <scopix/editing/SpxFieldGesture.h>

#include <QColor>
#include <QPointer>

class QColorDialog;
class QLineEdit;
class QPushButton;
class QToolButton;
class SoSFFloat;

namespace inspector
{

/// A colour: a swatch that opens a live picker, and its numbers as stored, which are sRGB from 0 to 1, as
/// hue, saturation and value, as hexadecimal text or as linear light. The picker of a material's colour has
/// its transparency too. A hue stays shown as typed while the colour is grey.
class ColorRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit ColorRow(SoField* field);
    ~ColorRow() override;

    void finish() override;

protected:
    void build() override;
    void showValue() override;
    bool isBusy() const override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
    void fieldSwitched() override { updateParts(); }
    bool takeText(const QString& text) override;

private:
    void makeSwatch();
    void makeForms();
    void makeHex();
    void openForms();
    void setForm(ColorForm form);
    void showForm();
    void updateParts();
    void applyHex();
    void openPicker();
    void pick(const QColor& picked);
    void take(const QColor& color, const QColor& reference);
    void close(bool keep);
    QColor color() const;
    std::vector<QColor> colors();
    ColorParts stored() const;
    void writeStored(int which, double number);
    SoSFFloat* transparency() const;

    ColorForm m_form;
    ColorParts m_parts{}; // hue, saturation, value
    ColorParts m_made{};  // what the field had when they were found
    QPushButton* m_swatch = nullptr;
    QToolButton* m_forms = nullptr;
    QLineEdit* m_hex = nullptr;
    QPointer<QColorDialog> m_picker;
    QColor m_picked; // the channels that the picker began with, or had last
    SpxFieldGesture m_transparency;
};

} // namespace inspector
