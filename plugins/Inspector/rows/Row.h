// SPDX-License-Identifier: MIT
#pragma once

#include "fields/Description.h"

#include <scopix/editing/SpxFieldGesture.h>
#include <scopix/editing/SpxFieldPointer.h>

#include <QWidget>

class QBoxLayout;
class QMenu;

namespace inspector
{

class Caption;
class Mark;
class NumberEdit;

/// One field of the panel: a mark that says what is special about it, its name, and its value, editable in
/// place. One derived class for each kind of value builds the inputs and shows the value in them. A row
/// writes nothing but what the user does. Shows nothing once its field is destroyed. GUI thread only.
class Row : public QWidget
{
    Q_OBJECT

public:
    /// The field's value may have changed, or its flags.
    void refresh();
    SoField* field() const { return m_field.get(); }
    /// What is typed is applied, and what is dragged is kept.
    virtual void finish() {}

    /// From left to right; those that take the focus.
    QList<QWidget*> inputs() const;
    void setStacked(bool stacked);

    /// "shininess, SFFloat: 0.2", to find it by.
    QString searchText() const;
    void reset();
    void copyValue() const;
    void pasteValue();

signals:
    /// The user works in this row.
    void chosen();

protected:
    explicit Row(SoField* field);

    /// After the constructor: the inputs, in editorLayout() or in a layout of its own.
    virtual void build() = 0;
    virtual void showValue() = 0;
    /// The user's own typing, drag or dialog is going on, which a change from elsewhere must not disturb.
    virtual bool isBusy() const { return false; }
    /// What a drag on the caption changes; null for nothing.
    virtual NumberEdit* draggedByCaption() const { return nullptr; }

    QWidget* editor() const { return m_editor; }
    QBoxLayout* editorLayout();
    /// Gives an input its place in the reading order and the name by which it is read out.
    void addInput(QWidget* input, const QString& part = QString());
    /// What this writes is no change from elsewhere.
    template <class Write>
    void edit(Write&& write)
    {
        if (!field())
            return;
        SpxFieldEdit::write(field(), write);
        changedHere();
    }
    void changedHere();
    SpxFieldGesture& gesture() { return m_gesture; }
    const Description* description() const { return m_description; }
    QString fieldName() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend Row* makeRow(SoField* field, QWidget* parent);
    void start();
    void buildFrame();
    void showMark();
    void showMenu(const QPoint& where);
    void addStateEntries(QMenu& menu);
    void addTextEntries(QMenu& menu);
    void connectField();
    void takeTheirs();
    void keepMine();
    void noteChange(quint32 change);
    QString toolTipText() const;
    QString typeText() const;
    void placeParts();

    SpxFieldPointer m_field;
    const Description* m_description;
    QString m_meaning; // as it is read out
    SpxFieldGesture m_gesture;
    Mark* m_mark = nullptr;
    Caption* m_caption = nullptr;
    QWidget* m_editor = nullptr;
    QList<QWidget*> m_inputs;
    quint32 m_shownChange = 0; // the field's change count, when its value was shown
    bool m_isShown = false;
    bool m_hasConflict = false; // changed elsewhere while busy
    int m_changesInARow = 0;    // from elsewhere, each soon after the one before
    qint64 m_lastChange = 0;    // on a steady clock, in ms
    bool m_isStacked = false;
};

} // namespace inspector
