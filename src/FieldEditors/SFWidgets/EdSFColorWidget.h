// SPDX-License-Identifier: MIT
#pragma once

#include "EdLineEditGroup.h"
#include "EdSFieldWidget.h"

#include <array>

/// Edits a colour: red, green and blue, normally 0 to 1, and a swatch that shows them and opens the colour
/// dialog.
class EdSFColorWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFColorWidget(const char* name = nullptr);

    void load() override;
    void refresh() override;
    bool edited() override;

protected slots:
    void changeRValue(const QString& text);
    void changeGValue(const QString& text);
    void changeBValue(const QString& text);
    void getColorEditor();

protected:
    void applyChanges() override;

private:
    void buildSwatch();
    void buildComponent(EdLineEdit*& edit, QLabel*& label);
    void change(std::size_t component, const QString& text);
    void displayColor();
    QColor currentColor() const;

    QPushButton* m_colorDisp = nullptr;
    std::array<EdLineEdit*, 3> m_edits{};
    std::array<QLabel*, 3> m_labels{};
    std::array<float, 3> m_components{}; // as last typed or read
    std::array<float, 3> m_shown{};      // as last read
    EdLineEditGroup m_inputs;
};
