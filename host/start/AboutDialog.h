// SPDX-License-Identifier: MIT
#pragma once

#include "start/PluginState.h"

#include <QDialog>

class QPlainTextEdit;

namespace scopix
{

/// What this program is made of and runs on, and the same as text for a report of a bug. GUI thread only.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    AboutDialog(const QString& version, const PluginStates& plugins, QWidget* parent);

    /// In English, whatever the window speaks: what a maintainer asks for first. It names no file and no
    /// person.
    static QString report(const QString& version, const std::vector<PluginState>& plugins);

private:
    void copy();

    QPlainTextEdit* m_details;
};

} // namespace scopix
