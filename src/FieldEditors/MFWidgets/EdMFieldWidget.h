// SPDX-License-Identifier: MIT
#pragma once

#include "SpxFieldEditors.h"

#include <scopix/editing/SpxFieldPointer.h>

#include <QPixmap>

class AccessButtonPrivate;
class EdMFieldTable;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class SoMField;

/// The common base of every editor of a multi-value field: caption, buttons, count and the table of elements.
/// A subclass turns one element into text and back; see EdMFLineWidget and EdMFComponentsWidget. GUI thread
/// only.
class EdMFieldWidget : public SpxFieldEditors
{
    Q_OBJECT

public:
    explicit EdMFieldWidget(const char* name = nullptr);
    /// tableKind 1 makes the colour table, any other value the plain one.
    EdMFieldWidget(int tableKind, const char* name);
    ~EdMFieldWidget() override;

    void deactivate() override;
    void load() override;
    void setField(SoField* field) override;
    void refresh() override;
    void setRefresh(bool refresh) override { m_refresh = refresh; }
    void swapRows(int row1, int row2) override;
    void swapColumns(int column1, int column2) override;
    void set1Value(int row, int column, QString text) override;
    void setValue(int row, const void* value) override;
    /// What is typed in an open cell.
    bool edited() override;
    void applyChanges() override;
    virtual QString getFieldValue(int row, int column) const;
    virtual int getTextFlags();
    /// True for a field that this editor edits.
    virtual bool checkField(SoField* field);

    void setFieldName(const QString& name);
    void updateNumElementLabel();

    /// Null once the field was released or destroyed.
    SoMField* editedField() const;
    AccessButtonPrivate* accessBox() const { return m_accessBox; }
    EdMFieldTable* table() const { return m_table; }
    /// Whether the field, as it is now, has this element.
    bool hasRow(int row) const;
    /// The start of a cell's text, at least `length` characters where there are as many; for those who draw
    /// it.
    virtual QString getCellText(int row, int column, int length) const;

public slots:
    virtual void languageChange();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();

protected:
    static constexpr int ColorTableKind = 1;

    /// Exchanges two elements of the edited field; nothing unless it has both.
    template <class Field>
    void swapElements(Field* field, int row1, int row2) const
    {
        if (!hasRow(row1) || !hasRow(row2))
            return;
        const typename Field::Value first = (*field)[row1];
        const typename Field::Value second = (*field)[row2];
        field->set1Value(row1, second);
        field->set1Value(row2, first);
    }
    QHBoxLayout* buttonsLayout() const { return m_buttonsLayout; }
    QSpacerItem* accessMoveSpacer() const { return m_accessMoveSpacer; }
    /// Column captions (one column without a caption when empty), no rows, columns that the user can resize.
    void initColumns(const QStringList& captions, int columns);

private:
    void buildButtons();
    void connectButtons();

    AccessButtonPrivate* m_accessBox = nullptr;
    QPushButton* m_upButton = nullptr;
    QPushButton* m_downButton = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_addButton = nullptr;
    QLabel* m_label = nullptr;
    QLabel* m_labelNumElement = nullptr;
    EdMFieldTable* m_table = nullptr;
    QGridLayout* m_globalLayout = nullptr;
    QHBoxLayout* m_buttonsLayout = nullptr;
    QHBoxLayout* m_manageButtonsLayout = nullptr;
    QSpacerItem* m_manageAccessSpacer = nullptr;
    QSpacerItem* m_accessMoveSpacer = nullptr;
    QPixmap m_deleteIcon;
    QPixmap m_addIcon;
    QPixmap m_upIcon;
    QPixmap m_downIcon;
    QPixmap m_defaultIcon;
    QPixmap m_ignoreIcon;
    bool m_refresh = true;
    SpxFieldPointer m_field; // the accepted field
};
