// SPDX-License-Identifier: MIT
#include "preferences/SettingRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace scopix
{

namespace
{

/// A wheel that scrolls past changes nothing.
template <class Input>
class CalmInput : public Input
{
public:
    CalmInput() { this->setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (this->hasFocus())
            Input::wheelEvent(event);
        else
            event->ignore();
    }
};

QLabel* makeHelp(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::WindowText);
    return label;
}

} // namespace

SettingRow::SettingRow(const Setting& setting, QWidget* parent)
    : QWidget(parent)
    , m_setting(setting)
    , m_input(makeInput())
{
    setObjectName(QStringLiteral("setting-") + setting.key);
    m_input->setObjectName(setting.key);
    m_input->setAccessibleName(setting.label);
    m_input->setAccessibleDescription(setting.help);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    if (setting.kind == Setting::Kind::Switch) {
        column->addWidget(m_input);
    } else {
        auto* row = new QHBoxLayout;
        auto* caption = new QLabel(setting.label);
        caption->setBuddy(m_input);
        caption->setWordWrap(true);
        row->addWidget(caption, 1);
        row->addWidget(m_input, 1);
        column->addLayout(row);
    }
    if (!setting.help.isEmpty())
        column->addWidget(makeHelp(setting.help));
    refresh();
}

QWidget* SettingRow::makeInput()
{
    switch (m_setting.kind) {
    case Setting::Kind::Choice:
        return makeChoice();
    case Setting::Kind::Number:
        return makeNumber();
    default:
        return makeSwitch();
    }
}

QWidget* SettingRow::makeChoice()
{
    auto* box = new CalmInput<QComboBox>;
    for (const auto& [value, text] : m_setting.choices)
        box->addItem(text, value);
    m_show = [box](const QVariant& value) { box->setCurrentIndex(box->findData(value)); };
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [this, box](int index) { apply(box->itemData(index)); });
    return box;
}

QWidget* SettingRow::makeNumber()
{
    auto* box = new CalmInput<QSpinBox>;
    box->setLocale(QLocale::c());
    box->setRange(m_setting.lowest, m_setting.highest);
    box->setSuffix(m_setting.unit);
    box->setSpecialValueText(m_setting.atLowest);
    box->setKeyboardTracking(false);
    m_show = [box](const QVariant& value) { box->setValue(value.toInt()); };
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, [this](int value) { apply(value); });
    return box;
}

QWidget* SettingRow::makeSwitch()
{
    auto* box = new QCheckBox(m_setting.label);
    m_show = [box](const QVariant& value) { box->setChecked(value.toBool()); };
    connect(box, &QCheckBox::toggled, this, [this](bool on) { apply(on); });
    return box;
}

void SettingRow::refresh()
{
    const QSignalBlocker quiet(m_input);
    m_show(m_setting.get());
}

void SettingRow::reset()
{
    apply(m_setting.shipped);
    refresh();
}

void SettingRow::apply(const QVariant& value)
{
    const QString problem = m_setting.set(value);
    if (!problem.isEmpty())
        emit failed(problem);
}

} // namespace scopix
