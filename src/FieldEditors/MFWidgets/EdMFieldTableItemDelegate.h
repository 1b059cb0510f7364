// SPDX-License-Identifier: MIT
#pragma once

#include <QItemDelegate>

class EdLineEdit;
class EdMFieldWidget;
class EdSlider;
class QKeyEvent;
class QLineEdit;

/// Draws a multi-value editor's cells from the editor's text, and makes and reads the cell editors.
class EdMFieldTableItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    EdMFieldTableItemDelegate(EdMFieldWidget* owner, QObject* parent);

    void setCellType(int type) { m_cellType = type; }
    void setIntEditorRange(int minimum, int maximum);
    void setDoubleEditorRange(double minimum, double maximum);
    void setBoundedValue(bool bounded) { m_bounded = bounded; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    virtual void setValidator(QLineEdit* edit) const;

    /// The text of a cell as the field gives it now, for assistive tools and the clipboard.
    virtual QString textOf(const QModelIndex& index) const;
    /// Whether a cell's editor holds what was typed and not applied.
    static bool isTyped(const QWidget* editor);

protected:
    EdMFieldWidget* owner() const { return m_owner; }
    /// The component that a table column shows.
    virtual int componentOf(int column) const { return column; }

private:
    EdSlider* createSlider(QWidget* parent, int row, const QString& text) const;
    EdLineEdit* createLineEdit(QWidget* parent, const QString& text) const;
    bool handleTab(QWidget* editor, const QKeyEvent& event);
    void commit(EdLineEdit* edit, QAbstractItemModel* model, const QModelIndex& index) const;

    EdMFieldWidget* m_owner;
    int m_cellType = 0;
    int m_intMaximum = 10;
    int m_intMinimum = 0;
    double m_doubleMaximum = 10.0;
    double m_doubleMinimum = 0.0;
    bool m_bounded = false;
};
