// SPDX-License-Identifier: MIT
#include "LightAimEditor.h"

#include "SetFieldCommand.h"

#include <scopix/SpxServices.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>

#include <QFormLayout>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double DegreesPerRadian = 57.29577951308232;

} // namespace

LightAimEditor::LightAimEditor()
    : m_sensor([](void* editor, SoSensor*) { static_cast<LightAimEditor*>(editor)->refresh(); }, this)
{
    setName("DirectionalLight");
    setDescription("Aims a directional light.");
    setVersion("1.0.0");
    setHandledType(SoDirectionalLight::getClassTypeId());
}

LightAimEditor::~LightAimEditor() = default;

void LightAimEditor::load()
{
    m_widget = std::make_unique<QWidget>();
    new QFormLayout(m_widget.get());
    m_azimuth = addSlider("azimuth", tr("Azimuth"), 180);
    m_elevation = addSlider("elevation", tr("Elevation"), 90);
    connect(m_azimuth, &QSlider::valueChanged, this, [this](int degrees) { apply(&Aim::azimuth, degrees); });
    connect(m_elevation, &QSlider::valueChanged, this,
            [this](int degrees) { apply(&Aim::elevation, degrees); });
    setWidget(m_widget.get());
}

void LightAimEditor::unload()
{
    setWidget(nullptr);
    m_widget.reset();
}

void LightAimEditor::activate()
{
    SpxEditor::activate();
    if (!light())
        return;
    m_sensor.attach(&light()->direction);
    refresh();
    show();
}

void LightAimEditor::deactivate()
{
    SpxEditor::deactivate();
    m_sensor.detach();
    hide();
}

SoDirectionalLight* LightAimEditor::light() const
{
    return dynamic_cast<SoDirectionalLight*>(getEditedObject());
}

QSlider* LightAimEditor::addSlider(const char* name, const QString& label, int limit)
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(name);
    slider->setRange(-limit, limit);
    static_cast<QFormLayout*>(m_widget->layout())->addRow(label, slider);
    return slider;
}

// Showing is not editing: the sliders move silently.
void LightAimEditor::refresh()
{
    if (!light())
        return;
    const QSignalBlocker azimuthBlocker(m_azimuth);
    const QSignalBlocker elevationBlocker(m_elevation);
    const Aim aim = aimOf(light()->direction.getValue());
    m_azimuth->setValue(int(std::lround(aim.azimuth)));
    m_elevation->setValue(int(std::lround(aim.elevation)));
}

// The angle that the person did not touch keeps the digits that its slider cannot show.
void LightAimEditor::apply(double Aim::*angle, int degrees)
{
    if (!light())
        return;
    const SbVec3f before = light()->direction.getValue();
    Aim aim = aimOf(before);
    aim.*angle = degrees;
    SoSFVec3f wanted;
    wanted.setValue(directionOf(aim, before.length()));
    SbString text;
    wanted.get(text);
    SpxServices::getInstance()->executeCommand(new SetFieldCommand(&light()->direction, text));
}

LightAimEditor::Aim LightAimEditor::aimOf(const SbVec3f& direction)
{
    const SbVec3f from = direction.normalized() * -1.0F;
    const double up = std::clamp(double(from[1]), -1.0, 1.0);
    return {std::atan2(from[0], from[2]) * DegreesPerRadian, std::asin(up) * DegreesPerRadian};
}

SbVec3f LightAimEditor::directionOf(const Aim& aim, float length)
{
    const double azimuth = aim.azimuth / DegreesPerRadian;
    const double elevation = aim.elevation / DegreesPerRadian;
    const SbVec3f from(float(std::sin(azimuth) * std::cos(elevation)), float(std::sin(elevation)),
                       float(std::cos(azimuth) * std::cos(elevation)));
    return from * -(length > 0 ? length : 1.0F);
}
