// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QJsonObject;

namespace scopix
{

/// A sentence for each extension of a glTF file's text that neither the importer nor anything here knows.
QStringList extensionLosses(const QJsonObject& text);

} // namespace scopix
