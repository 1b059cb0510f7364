// SPDX-License-Identifier: MIT
#pragma once

namespace inspector
{

class ListTableView;

/// What screen readers see of a table: a table whose cells are made when they are asked for, so that a list
/// of millions costs nothing, each with a name that says where it is and what it holds.
namespace TableAccessible
{

/// While the plug-in is loaded; calls of install() and uninstall() pair.
void install();
void uninstall();

/// Reports which cell is current now.
void currentChanged(ListTableView& view);

} // namespace TableAccessible

} // namespace inspector
