// SPDX-License-Identifier: MIT
// Exporting the scene to files of other programs, as the user sees it.
#pragma once

#include <QString>

class QWidget;

namespace scopix
{

class SceneDocument;
class SceneExport;

/// Asks for a name, with one of the endings of SceneExport, at first in `folder`; empty where the user gives
/// none.
QString askForExport(QWidget& window, const SceneDocument& document, const QString& folder);

/// Says what the file will not keep; false where the user would rather not.
bool confirmLosses(QWidget& window, const QString& path, const SceneExport& scene);

} // namespace scopix
