// SPDX-License-Identifier: MIT
#pragma once

/// Describes the tables of lists to screen readers: their cells answer from the field, with or without an
/// item. Qt's own description knows only the items, which few cells have and which hold old texts.
/// Every table keeps one of these; with the last one the description is withdrawn, since its code may be
/// unloaded then. GUI thread only.
class EdTableAccessibility
{
public:
    EdTableAccessibility();
    EdTableAccessibility(const EdTableAccessibility&) = delete;
    EdTableAccessibility& operator=(const EdTableAccessibility&) = delete;
    ~EdTableAccessibility();
};
