// SPDX-License-Identifier: MIT
// An editor for directional lights: two sliders, in degrees, for where the light comes from.
#include <scopix/SpxPlugin.h>
#include <scopix/SpxPluginNote.h>
#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxObjectEditor.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <memory>

SPX_PLUGIN_NOTE("LightAim", "1.0.0")

namespace
{

constexpr double DegreesPerRadian = 57.29577951308232;

// Degrees: from +z towards +x, and above the ground.
struct Aim {
    double azimuth;
    double elevation;
};

Aim aimOf(const SbVec3f& direction)
{
    const SbVec3f from = direction.normalized() * -1.0F;
    const double up = std::clamp(double(from[1]), -1.0, 1.0);
    return {std::atan2(from[0], from[2]) * DegreesPerRadian, std::asin(up) * DegreesPerRadian};
}

SbVec3f directionOf(const Aim& aim, float length)
{
    const double azimuth = aim.azimuth / DegreesPerRadian;
    const double elevation = aim.elevation / DegreesPerRadian;
    const SbVec3f from(float(std::sin(azimuth) * std::cos(elevation)), float(std::sin(elevation)),
                       float(std::cos(azimuth) * std::cos(elevation)));
    return from * -(length > 0 ? length : 1.0F);
}

class LightAimEditor : public SpxObjectEditor
{
    Q_DECLARE_TR_FUNCTIONS(LightAimEditor)

public:
    LightAimEditor()
    {
        setName("DirectionalLight");
        setHandledType(SoDirectionalLight::getClassTypeId());
    }

protected:
    void build(QWidget& widget) override
    {
        auto* form = new QFormLayout(&widget);
        form->addRow(tr("Azimuth"), m_azimuth = newSlider("azimuth", 180, &Aim::azimuth));
        form->addRow(tr("Elevation"), m_elevation = newSlider("elevation", 90, &Aim::elevation));
    }

    void refresh() override
    {
        const QSignalBlocker quietAzimuth(m_azimuth);
        const QSignalBlocker quietElevation(m_elevation);
        const Aim aim = aimOf(edited<SoDirectionalLight>()->direction.getValue());
        m_azimuth->setValue(int(std::lround(aim.azimuth)));
        m_elevation->setValue(int(std::lround(aim.elevation)));
    }

private:
    QSlider* newSlider(const char* name, int limit, double Aim::*angle)
    {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setObjectName(name);
        slider->setRange(-limit, limit);
        connect(slider, &QSlider::valueChanged, this, [=](int degrees) { apply(angle, degrees); });
        return slider;
    }

    // The other angle keeps the digits that its slider cannot show.
    void apply(double Aim::*angle, int degrees)
    {
        auto* light = edited<SoDirectionalLight>();
        if (!light)
            return;
        const SbVec3f before = light->direction.getValue();
        Aim aim = aimOf(before);
        aim.*angle = degrees;
        SpxFieldEdit::write(&light->direction,
                            [&] { light->direction.setValue(directionOf(aim, before.length())); });
    }

    QSlider* m_azimuth = nullptr;
    QSlider* m_elevation = nullptr;
};

class LightAim : public SpxPlugin
{
public:
    LightAim()
    {
        setName("LightAim");
        setDescription("Aims directional lights by azimuth and elevation.");
        setVersion("1.0.0");
    }

    bool load() override
    {
        addExtension(&m_editor);
        return SpxPlugin::load();
    }

private:
    LightAimEditor m_editor;
};

std::unique_ptr<LightAim> s_plugin;

} // namespace

extern "C" __attribute__((visibility("default"))) SpxPlugin* loadPlugin()
{
    s_plugin = std::make_unique<LightAim>();
    return s_plugin.get();
}

extern "C" __attribute__((visibility("default"))) void unloadPlugin()
{
    s_plugin.reset();
}
