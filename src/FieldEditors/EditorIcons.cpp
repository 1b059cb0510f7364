// SPDX-License-Identifier: MIT
#include "EditorIcons.h"

#include "EditorIconData.h"

QPixmap fieldEditor::icon(Icon which)
{
    switch (which) {
    case Icon::Add:
        return QPixmap(editorIcons::AddXpm);
    case Icon::Delete:
        return QPixmap(editorIcons::DeleteXpm);
    case Icon::Up:
        return QPixmap(editorIcons::UpXpm);
    case Icon::Down:
        return QPixmap(editorIcons::DownXpm);
    case Icon::Default:
        return QPixmap(editorIcons::DefaultXpm);
    case Icon::Ignore:
        return QPixmap(editorIcons::IgnoreXpm);
    case Icon::Edit:
        return QPixmap(editorIcons::EditXpm);
    }
    return {};
}
