// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QPair>
#include <QString>
#include <QVector>

#include <functional>
#include <vector>

/// What a shell may offer beyond SpxShell: the dialog of the user's preferences also shows what can be set of
/// an extension. The extension keeps the value. GUI thread only.
class SPX_API SpxSettings
{
public:
    /// One of several values, each with a text for the user. `key` is the name for programs, the same in
    /// every version, as in "lengthUnit".
    struct Choice {
        QString key;
        QString page; // title of the page it is on, which may be one that the dialog has
        QString label;
        QString help; // one sentence
        QVector<QPair<QString, QString>> choices;
        QString shipped;
        std::function<QString()> get;
        /// Takes effect at once, and is remembered by the extension.
        std::function<void(const QString&)> set;
    };

    /// Null where the host does not offer this.
    static SpxSettings* getInstance();

    SpxSettings(const SpxSettings&) = delete;
    SpxSettings& operator=(const SpxSettings&) = delete;

    /// `owner` is any address of the extension, which removes its choices before it is unloaded.
    virtual void addChoice(const void* owner, const Choice& choice) = 0;
    virtual void removeChoices(const void* owner) = 0;
    /// Of all extensions, in the order in which they came.
    virtual std::vector<Choice> getChoices() const = 0;

protected:
    SpxSettings() = default;
    virtual ~SpxSettings();
};
