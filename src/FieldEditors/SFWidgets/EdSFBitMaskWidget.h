// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

#include <optional>
#include <vector>

class QCheckBox;
class QVBoxLayout;
class SoSFBitMask;

/// Edits a set of named bits with one check box for each. Its clicks are not recorded for undo, unlike those
/// of every other editor (decisions.md: bit-mask-no-undo).
class EdSFBitMaskWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFBitMaskWidget(const char* name = nullptr);

    void load() override;
    void unload() override;
    void setField(SoField* field) override;
    void refresh() override;

protected slots:
    virtual void setBitMaskValue();

protected:
    void applyChanges() override;

private:
    void initClass();
    void addBox(const QString& name);
    void clearEditor();
    void checkBoxes(const SoSFBitMask& field);

    std::vector<QCheckBox*> m_boxes;
    QVBoxLayout* m_boxLayout = nullptr;
    std::optional<int> m_shown; // the value that the boxes stand for
};
