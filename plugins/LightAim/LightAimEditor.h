// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxEditor.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/values/SbVec.h>

#include <memory>

class QSlider;
class QWidget;
class SoDirectionalLight;

/// Two sliders, in degrees, that say where a directional light comes from. The node editor shows it for every
/// selected light.
class LightAimEditor : public SpxEditor
{
    Q_OBJECT

public:
    LightAimEditor();
    ~LightAimEditor() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;

private:
    struct Aim {
        double azimuth;   // degrees from +z towards +x, -180 to 180
        double elevation; // degrees above the ground, -90 to 90
    };
    static Aim aimOf(const SbVec3f& direction);
    static SbVec3f directionOf(const Aim& aim, float length);

    SoDirectionalLight* light() const;
    QSlider* addSlider(const char* name, const QString& label, int limit);
    void refresh();
    void apply(double Aim::*angle, int degrees);

    std::unique_ptr<QWidget> m_widget;
    QSlider* m_azimuth = nullptr;
    QSlider* m_elevation = nullptr;
    SoFieldSensor m_sensor;
};
