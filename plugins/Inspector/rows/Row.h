// SPDX-License-Identifier: MIT
#pragma once

#include "rows/FieldGroup.h"

#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/descriptions/SpxFieldDescription.h>

#include <QScopedValueRollback>
#include <QWidget>

#include <vector>

class QBoxLayout;
class QMenu;
class QToolButton;

namespace inspector
{

enum class FieldKind;

class Caption;
class Mark;
class NumberEdit;

/// One field of the panel: a mark that says what is special about it, its name, and its value, editable in
/// place. One derived class for each kind of value builds the inputs and shows the value in them. A row
/// writes nothing but what the user does. Shows nothing once its field is destroyed.
///
/// A row may stand for the same field of several nodes: it shows the one of the current node, or that they
/// differ, and what the user does to it is done to all, as one step. GUI thread only.
class Row : public QWidget
{
    Q_OBJECT

public:
    /// The field's value may have changed, or its flags.
    void refresh();
    SoField* field() const { return m_field.get(); }
    /// The field and those of the other nodes, as far as they are alive; the current one first.
    std::vector<SoField*> fields() const;
    /// The fields differ in their values.
    bool isMixed() const;
    /// What is typed is applied, and what is dragged is kept.
    virtual void finish() {}

    /// Marks the row while its value differs from that field's, of the same type, and offers that value. Null
    /// ends that.
    void compareWith(SoField* other);
    bool isDifferent() const;

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

    /// A child of the row before the other inputs, in the line of the caption where that is above them; null
    /// for none.
    virtual QWidget* besideCaption() const { return nullptr; }

    QWidget* editor() const { return m_editor; }
    QBoxLayout* editorLayout();
    /// Gives an input its place in the reading order and the name by which it is read out.
    void addInput(QWidget* input, const QString& part = QString());
    /// Those that were added, in another reading order.
    void setInputOrder(const QList<QWidget*>& inputs) { m_inputs = inputs; }
    /// What this writes is no change from elsewhere.
    template <class Write>
    void edit(Write&& write)
    {
        if (!field())
            return;
        if (SpxFieldEdit::isRefused())
            return changedHere();
        FieldGroupEdit group;
        forEachField([&](std::size_t) { group.write(field(), write); });
        group.record();
        changedHere();
    }
    /// Calls `act(number)` once for each of the fields, the current one, 0, first; field() is that one
    /// meanwhile.
    template <class Act>
    void forEachField(Act&& act)
    {
        if (field())
            act(std::size_t(0));
        if (m_others.empty())
            return;
        const SpxFieldPointer current = m_field;
        {
            const QScopedValueRollback<bool> isOther(m_isOther, true);
            for (std::size_t i = 0; i < m_others.size(); ++i) {
                m_field = m_others[i];
                if (!field())
                    continue;
                fieldSwitched();
                act(i + 1);
            }
        }
        m_field = current;
        if (field())
            fieldSwitched();
    }
    bool isOther() const { return m_isOther; }
    /// field() is another one: what the row keeps of the value is no longer right.
    virtual void fieldSwitched() {}
    void changedHere();
    void beginGesture() { m_gesture.begin(fields()); }
    FieldGroupGesture& gesture() { return m_gesture; }
    static QString mixedWord() { return tr("mixed"); }
    const SpxFieldDescription* description() const { return m_description; }
    QString fieldName() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend Row* makeRow(SoField* field, std::vector<SpxFieldPointer> others, FieldKind kind, QWidget* parent);
    quint32 changeCount() const;
    bool isAny(bool (SoField::*is)() const) const;
    bool areAllDefault() const;
    void start();
    void buildFrame();
    void showMark();
    void showMenu(const QPoint& where);
    void addStateEntries(QMenu& menu);
    void addTextEntries(QMenu& menu);
    void connectField();
    void showDifference();
    void takeCompared();
    void paintEvent(QPaintEvent* event) override;
    void takeTheirs();
    void keepMine();
    void noteChange(quint32 change);
    QString toolTipText() const;
    QString typeText() const;
    void placeParts();

    SpxFieldPointer m_field;
    const SpxFieldDescription* m_description;
    QString m_meaning;                     // as it is read out
    std::vector<SpxFieldPointer> m_others; // of the other nodes
    bool m_isOther = false;                // m_field is one of them at the moment
    FieldGroupGesture m_gesture;
    Mark* m_mark = nullptr;
    Caption* m_caption = nullptr;
    SpxFieldPointer m_compared;
    QToolButton* m_take = nullptr; // the compared value; made when it is needed
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
