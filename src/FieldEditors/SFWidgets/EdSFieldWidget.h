// SPDX-License-Identifier: MIT
#pragma once

#include "SpxFieldEditors.h"

class EdSlider;
class QBoxLayout;
class QFrame;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class SoSField;

/// What fills the place for the value.
enum SFFrameType : int {
    PlainFrame = 0, // the subclass's own inputs
    FloatFrame = 1,
    DoubleFrame = 2,
    Int32Frame = 3,
    UInt32Frame = 4,
    ShortFrame = 5,
    UShortFrame = 6
};

/// Base of the editors of single-value fields: the caption with the field's type, the place for the value's
/// inputs (or a slider, for numbers), and the buttons that set the default and ignore the field. GUI thread
/// only.
class EdSFieldWidget : public SpxFieldEditors
{
    Q_OBJECT

public:
    explicit EdSFieldWidget(const char* name = nullptr);
    /// A null name stands for the class's.
    explicit EdSFieldWidget(SFFrameType frameType, const char* name = nullptr);
    ~EdSFieldWidget() override;

    /// Subclasses then add their inputs to editLayout(). Loading again builds all inputs again.
    void load() override;
    void setField(SoField* field) override;
    /// Subclasses show the field's value first.
    void refresh() override;
    void setRefresh(bool enabled) override;
    void swapRows(int first, int second) override;
    void swapColumns(int first, int second) override;
    void set1Value(int row, int column, QString text) override;
    void setValue(int index, const void* value) override;
    bool edited() override;

    /// The caption; the first one stays.
    void setFieldName(const QString& name);

protected slots:
    void applyChanges() override;
    virtual void languageChange();
    virtual void setCommandValue();
    void setFocusLeaveEvent();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();

protected:
    /// For a subclass's constructor: the type it edits, and the names that follow from it. A null name stands
    /// for the class's.
    void setFieldType(SoType type, const char* name);

    SoSField* getSField() const;
    /// Null without a slider.
    EdSlider* slider() const { return m_slider; }
    QFrame* editionFrame() const { return m_editionFrame; }
    QBoxLayout* editLayout() const { return m_editLayout; }
    void setSpacers(int width, int height);
    /// Another number for each field that came: a dialog compares it when it returns.
    int editingRound() const { return m_editingRound; }
    /// Every input shows the field's value in place of what was typed into it.
    virtual void dropTyping();

private:
    void makeSlider(SFFrameType frameType);
    void discardWidgets();
    void styleLabel();
    void buildEditionFrame();
    void buildButtons();

    QLabel* m_label = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    QFrame* m_editionFrame = nullptr;
    EdSlider* m_slider = nullptr;
    QHBoxLayout* m_mainLayout = nullptr;
    QHBoxLayout* m_buttonLayout = nullptr;
    QBoxLayout* m_editLayout = nullptr;
    QHBoxLayout* m_editionAreaLayout = nullptr;
    QSpacerItem* m_labelSpacer = nullptr;
    QSpacerItem* m_editionSpacer = nullptr;
    int m_editingRound = 0;
};
