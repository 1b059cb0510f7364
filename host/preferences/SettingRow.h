// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/Setting.h"

#include <QWidget>

class QLabel;

namespace scopix
{

/// A setting with its input, applied as soon as it is changed. GUI thread only.
class SettingRow : public QWidget
{
    Q_OBJECT

public:
    explicit SettingRow(const Setting& setting, QWidget* parent = nullptr);

    const Setting& getSetting() const { return m_setting; }
    QWidget& getInput() const { return *m_input; }
    /// As it is set by now.
    void refresh();
    void reset();

signals:
    /// It cannot be kept; one sentence.
    void failed(const QString& sentence);

private:
    QWidget* makeInput();
    QWidget* makeChoice();
    QWidget* makeNumber();
    QWidget* makeSwitch();
    void apply(const QVariant& value);

    Setting m_setting;
    std::function<void(const QVariant&)> m_show;
    QWidget* m_input;
};

} // namespace scopix
