// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QString>

class QWidget;
class SoField;
class SoNode;

/// What a host may offer beside its shell: leading from a text to what it names, and a place in the status
/// bar. Made and destroyed by the host. GUI thread only.
class SPX_API SpxNavigator
{
public:
    /// Null where the host does not offer this.
    static SpxNavigator* getInstance();

    SpxNavigator(const SpxNavigator&) = delete;
    SpxNavigator& operator=(const SpxNavigator&) = delete;

    /// As if the user had chosen it in the menu File: asks for unsaved changes, and reports what fails.
    virtual void openFile(const QString& path) = 0;

    /// The node that a path as in SoScenePath leads to, such as "/Lamp/Bulb" or "Bulb"; null where there is
    /// none, or several.
    virtual SoNode* findNode(const QString& path) const = 0;
    /// The field of a path that names one, as in "Bulb.radius".
    virtual SoField* findField(const QString& path) const = 0;

    /// At the right end of the status bar, shown. The widget stays the caller's, who keeps it as low as a
    /// line of text; what is removed has no parent afterwards.
    virtual void addStatusWidget(QWidget* widget) = 0;
    virtual void removeStatusWidget(QWidget* widget) = 0;

protected:
    SpxNavigator();
    virtual ~SpxNavigator();
};
