// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

namespace scopix
{

/// What the user wants to happen with a file that another program has changed.
enum class ChangedFileAnswer { Reload, Reapply, SaveElsewhere, Replace, Cancel };

/// Asks over the window, before a scene is saved; `title` names it. `isModified`: reloading would lose edits.
ChangedFileAnswer askAboutChangedFile(QWidget& window, const QString& title, bool isModified);

} // namespace scopix
