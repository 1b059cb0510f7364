// SPDX-License-Identifier: MIT
// An editor for colours: chips to choose from, and a slider that makes the colour brighter or darker.
#include <scopix/SpxPlugin.h>
#include <scopix/SpxPluginNote.h>
#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxFieldGesture.h>
#include <scopix/editing/SpxObjectEditor.h>
#include <xsg/fields/SoSFColor.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

SPX_PLUGIN_NOTE("ColorChips", "1.0.0")

namespace
{

struct Chip {
    const char* name;
    SbColor color;
};

const std::array<Chip, 6> Chips = {{{QT_TRANSLATE_NOOP("ColorChipsEditor", "White"), {1, 1, 1}},
                                    {QT_TRANSLATE_NOOP("ColorChipsEditor", "Grey"), {0.5F, 0.5F, 0.5F}},
                                    {QT_TRANSLATE_NOOP("ColorChipsEditor", "Red"), {0.8F, 0.1F, 0.1F}},
                                    {QT_TRANSLATE_NOOP("ColorChipsEditor", "Amber"), {0.9F, 0.6F, 0.1F}},
                                    {QT_TRANSLATE_NOOP("ColorChipsEditor", "Green"), {0.2F, 0.6F, 0.2F}},
                                    {QT_TRANSLATE_NOOP("ColorChipsEditor", "Blue"), {0.1F, 0.3F, 0.8F}}}};

constexpr int Steps = 100; // of the slider, from black to as bright as the colour can be

float brightnessOf(const SbColor& color)
{
    return std::max({color[0], color[1], color[2]});
}

// The same hue; black becomes grey.
SbColor withBrightness(const SbColor& color, float brightness)
{
    const float before = brightnessOf(color);
    return before > 0 ? SbColor(color * (brightness / before)) : SbColor(brightness, brightness, brightness);
}

class ColorChipsEditor : public SpxObjectEditor
{
    Q_DECLARE_TR_FUNCTIONS(ColorChipsEditor)

public:
    ColorChipsEditor()
    {
        setName("ColorChips");
        setHandledType(SoSFColor::getClassTypeId());
    }

protected:
    void build(QWidget& widget) override
    {
        auto* layout = new QVBoxLayout(&widget);
        auto* chips = new QHBoxLayout;
        for (const Chip& chip : Chips)
            chips->addWidget(newButton(chip));
        layout->addLayout(chips);
        layout->addWidget(m_brightness = newSlider());
    }

    void refresh() override
    {
        const QSignalBlocker quiet(m_brightness);
        m_brightness->setValue(int(std::lround(brightnessOf(color()) * Steps)));
    }

private:
    QPushButton* newButton(const Chip& chip)
    {
        auto* button = new QPushButton(tr(chip.name));
        button->setObjectName(chip.name);
        connect(button, &QPushButton::clicked, this, [this, &chip] { write(chip.color); });
        return button;
    }

    QSlider* newSlider()
    {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setAccessibleName(tr("Brightness"));
        slider->setRange(0, Steps);
        connect(slider, &QSlider::sliderPressed, this, &ColorChipsEditor::beginDrag);
        connect(slider, &QSlider::valueChanged, this, &ColorChipsEditor::brighten);
        connect(slider, &QSlider::sliderReleased, this, [this] { m_drag.keep(); });
        return slider;
    }

    void beginDrag()
    {
        auto* field = edited<SoSFColor>();
        if (!field || SpxFieldEdit::isRefused())
            return;
        m_atPress = field->getValue();
        m_drag.begin(field);
    }

    // By the keyboard, each step of the slider is a step to undo. While the handle is held it is one until
    // the release, and of the field that was shown at the press, also where another one was chosen meanwhile.
    void brighten(int step)
    {
        const float brightness = float(step) / Steps;
        if (auto* held = static_cast<SoSFColor*>(m_drag.getField()))
            m_drag.write([&] { held->setValue(withBrightness(m_atPress, brightness)); });
        else if (auto* field = edited<SoSFColor>())
            write(withBrightness(field->getValue(), brightness));
    }

    void write(const SbColor& color)
    {
        if (auto* field = edited<SoSFColor>())
            SpxFieldEdit::write(field, [&] { field->setValue(color); });
    }

    SbColor color() const { return edited<SoSFColor>()->getValue(); }

    QSlider* m_brightness = nullptr;
    SpxFieldGesture m_drag;
    SbColor m_atPress;
};

class ColorChips : public SpxPlugin
{
public:
    ColorChips()
    {
        setName("ColorChips");
        setDescription("Chooses colours from chips.");
        setVersion("1.0.0");
    }

    bool load() override
    {
        addExtension(&m_editor);
        return SpxPlugin::load();
    }

private:
    ColorChipsEditor m_editor;
};

std::unique_ptr<ColorChips> s_plugin;

} // namespace

extern "C" __attribute__((visibility("default"))) SpxPlugin* loadPlugin()
{
    s_plugin = std::make_unique<ColorChips>();
    return s_plugin.get();
}

extern "C" __attribute__((visibility("default"))) void unloadPlugin()
{
    s_plugin.reset();
}
