// SPDX-License-Identifier: MIT
#include "SpxFieldEditors.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QFrame>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace
{

bool isEnding(const SoField* field)
{
    const SoFieldContainer* container = field->getContainer();
    return container && container->isBeingDestroyed();
}

template <class Control>
QList<QWidget*> controlsIn(const QWidget* container)
{
    QList<QWidget*> controls;
    for (Control* control : container->findChildren<Control*>())
        controls << control;
    return controls;
}

// Lets go of every button, slider and spin box that is held, in silence: what the user still does with the
// pressed mouse button must not reach the next field. The release goes to the control alone, since for
// everybody else the mouse button stays down.
void releasePressed(const QWidget* container)
{
    if (!container)
        return;
    for (auto* button : container->findChildren<QAbstractButton*>())
        button->setDown(false);
    for (QWidget* control : controlsIn<QAbstractButton>(container) + controlsIn<QAbstractSlider>(container) +
                                controlsIn<QAbstractSpinBox>(container)) {
        const QSignalBlocker quiet(control);
        const QPoint outside(-1, -1);
        QMouseEvent release(QEvent::MouseButtonRelease, outside, control->mapToGlobal(outside),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        static_cast<QObject*>(control)->event(&release);
    }
}

} // namespace

SpxFieldEditors::SpxFieldEditors()
    : m_container(new QFrame)
{
    setDescription("Field Editor for Scopix.");
    setVendor("Arvex");
    setVersion("1.0.0");
    setWidget(m_container);
}

SpxFieldEditors::~SpxFieldEditors()
{
    delete m_container;
}

void SpxFieldEditors::activate()
{
    SpxExtension::activate();
    auto* field = dynamic_cast<SoField*>(getEditedObject());
    if (!field)
        return;
    setField(field);
    refresh();
    show();
}

void SpxFieldEditors::deactivate()
{
    applyPending();
    SpxExtension::deactivate();
    if (m_sensor)
        m_sensor->detach();
    hide();
}

void SpxFieldEditors::applyPending()
{
    const SoField* field = getField();
    if (field && !isEnding(field) && edited())
        applyChanges();
}

void SpxFieldEditors::hide()
{
    SpxExtension::hide();
    if (m_container)
        m_container->setVisible(false);
    for (const QPointer<QWidget>& window : m_windows) {
        if (window)
            window->setVisible(false);
    }
}

void SpxFieldEditors::load()
{
    hide();
    m_sensor = std::make_unique<SoFieldSensor>(fieldSensorCB, this);
}

void SpxFieldEditors::show()
{
    SpxExtension::show();
    if (m_container)
        m_container->setVisible(true);
}

void SpxFieldEditors::unload()
{
    m_sensor.reset();
}

void SpxFieldEditors::setField(SoField* field)
{
    if (field != getField())
        releasePressed(m_container);
    if (m_sensor)
        m_sensor->attach(field);
}

bool SpxFieldEditors::edited()
{
    return false;
}

QFrame* SpxFieldEditors::getWidgetContainer() const
{
    return m_container;
}

void SpxFieldEditors::fieldSensorCB(void* data, SoSensor* /*sensor*/)
{
    static_cast<SpxFieldEditors*>(data)->refresh();
}

SoField* SpxFieldEditors::getField() const
{
    return m_sensor ? m_sensor->getAttachedField() : nullptr;
}

void SpxFieldEditors::addWindow(QWidget* window)
{
    m_windows.removeAll(nullptr); // of an earlier load()
    m_windows.append(window);
}
