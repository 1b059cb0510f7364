// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

class QIODevice;

namespace scopix
{

/// What a plug-in's note (see SpxPluginNote.h) says it was made for.
class PluginNote
{
public:
    /// From the note's text; lines that are no "key=value" are passed over.
    static PluginNote parse(const QByteArray& text);
    /// What this host fits.
    static PluginNote ofHost();

    QString value(const QString& key) const { return m_values.value(key); }

    /// Empty when a host of that note can use the plug-in; else the first thing that does not fit, as the end
    /// of a sentence about "it".
    QString whyUnfitFor(const PluginNote& host) const;

private:
    QMap<QString, QString> m_values;
};

/// Reads the library and its note, and runs no code of it. Empty when nothing speaks against loading it,
/// which includes a library without a note; else the reason, as the end of a sentence about "it".
QString whyNotLoadable(QIODevice& library);

} // namespace scopix
