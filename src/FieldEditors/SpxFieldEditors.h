// SPDX-License-Identifier: MIT
#pragma once

#include "EdRangeComponent.h"

#include <scopix/SpxEditor.h>
#include <xsg/sensors/SoFieldSensor.h>

#include <QList>
#include <QPointer>

#include <memory>

class QFrame;
class SoField;

/// Base of every field editor: owns the frame for the editor's widgets, watches the edited field, and
/// releases it safely.
///
/// One round of editing: setEditedObject(field), the widget is put into a dock, activate() (which calls
/// setField(), refresh() and show()), the user edits, changes from elsewhere call refresh(), deactivate(),
/// setEditedObject(null). GUI thread only.
class SpxFieldEditors : public SpxEditor
{
    Q_OBJECT

public:
    ~SpxFieldEditors() override;

    void activate() override;
    /// Applies what edited() reports, then releases the field and hides everything: a signal or a dialog that
    /// comes back later finds no field. Where the field itself is being destroyed, what was typed is dropped.
    void deactivate() override;
    void hide() override;
    /// Overrides call this one first.
    void load() override;
    void show() override;
    void unload() override;

    /// Watches the field; null releases it. Overrides end with this one.
    virtual void setField(SoField* field);
    /// Reads the field into the widgets. Never writes it.
    virtual void refresh() = 0;
    /// False while the editor changes the field itself and wants no refresh().
    virtual void setRefresh(bool enabled) = 0;
    virtual void swapRows(int first, int second) = 0;
    virtual void swapColumns(int first, int second) = 0;
    /// Sets one component from text.
    virtual void set1Value(int row, int column, QString text) = 0;
    /// Sets one value; the type behind the pointer is the subclass's.
    virtual void setValue(int index, const void* value) = 0;
    /// Writes what the widgets hold to the field, as an undoable edit.
    virtual void applyChanges() = 0;
    /// True while an input holds what has not been applied yet.
    virtual bool edited();

    QFrame* getWidgetContainer() const;

    static void fieldSensorCB(void* data, SoSensor* sensor);

protected:
    SpxFieldEditors();

    /// The field that is being edited. Null outside activate() and deactivate(), before load(), and from the
    /// moment at which the field is destroyed, so ask each time rather than keep it.
    SoField* getField() const;
    /// The same as its class, or null where it is of another.
    template <class Field>
    Field* getFieldAs() const
    {
        return dynamic_cast<Field*>(getField());
    }

    /// A window of the editor outside the container (a popup frame, an enlarged picture): it is hidden with
    /// the container. Its owner stays who it was.
    void addWindow(QWidget* window);

    /// For the editors with sliders.
    EdRangeComponent m_range;

private:
    void applyPending();

    std::unique_ptr<SoFieldSensor> m_sensor; // there while loaded
    QPointer<QFrame> m_container;            // the editor's own, wherever it is docked
    QList<QPointer<QWidget>> m_windows;
};
