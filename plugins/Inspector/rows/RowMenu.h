// SPDX-License-Identifier: MIT
#pragma once

class QMenu;
class QWidget;
class SpxFieldPointer;

namespace inspector
{

/// The part of a row's context menu that leads beyond it: finding the value, the user's own default, what the
/// panel around the row offers (the actions of the widgets that hold it), help, and the entries of other
/// plug-ins. Each stands there where the host offers it.
void addEntriesBeyond(QMenu& menu, const SpxFieldPointer& field, QWidget& row);

/// The actions of the widgets that hold this one, from the inside out.
void addActionsAround(QMenu& menu, const QWidget& widget);

/// Opens the page on nodes at the field's node. False where the host has none.
bool showHelpFor(const SpxFieldPointer& field);

} // namespace inspector
