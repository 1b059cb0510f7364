// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>
#include <xsg/types/SoTypedObject.h>

class QWidget;

/// An extension that edits one kind of object. The dock that hosts editors picks one by its handled type,
/// gives it the object, takes its widget and activates it. GUI thread only.
class SPX_API SpxEditor : public SpxExtension
{
    Q_OBJECT

public:
    ~SpxEditor() override;

    /// The type whose objects, derived ones included, this editor edits.
    virtual SoType getHandledType();
    /// Not owned; null releases the object.
    virtual void setEditedObject(SoTypedObject* object);
    virtual SoTypedObject* getEditedObject() const;
    /// The editor's top widget; stays the editor's own.
    virtual QWidget* getWidget() const;

protected:
    SpxEditor();
    void setHandledType(SoType type) { m_handledType = type; }
    void setWidget(QWidget* widget) { m_widget = widget; }

private:
    SoType m_handledType;
    SoTypedObject* m_editedObject = nullptr;
    QWidget* m_widget = nullptr;
};
