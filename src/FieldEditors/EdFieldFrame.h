// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QFrame;
class QHBoxLayout;
class QLabel;
class QLayout;
class QPixmap;
class QPushButton;
class QWidget;

/// Builds the parts that the frames of single- and multi-value editors have in common, with the metrics of
/// xsgsettings_fieldEditor(). All it makes become children of the editor's container; which of them stand in
/// what order is up to the editor. GUI thread only.
class EdFieldFrame
{
public:
    explicit EdFieldFrame(QFrame* container)
        : m_container(container)
    {
    }

    /// A box with plain lines; the key names their width.
    static void setBox(QFrame* frame, const char* lineWidthKey);
    static void setMetrics(QLayout* layout, const char* objectName, const char* marginKey,
                           const char* spacingKey);
    /// Without a parent, for a layout inside another one.
    static QHBoxLayout* newRow(const char* objectName, const char* marginKey, const char* spacingKey,
                               QWidget* parent = nullptr);

    /// The caption with this text; `label` is an earlier one, which keeps its text, or null.
    QLabel* captioned(QLabel* label, const QString& name) const;
    QLabel* newLabel(const char* objectName) const;
    static void styleCaption(QLabel* label);

    /// A click leaves the keyboard where it is.
    QPushButton* newButton(const char* objectName, const QPixmap& icon) const;
    QPushButton* newDefaultButton(const QPixmap& icon) const;
    QPushButton* newIgnoreButton(const QPixmap& icon) const;
    /// What the tool tip says is the name for assistive tools too.
    static void name(QWidget* widget, const QString& toolTip);
    static void nameStateButtons(QPushButton* defaultButton, QPushButton* ignoreButton);

    /// Deletes the container's layout and the widgets directly in it but for those to keep: what an earlier
    /// load() built.
    void discard(const QList<QWidget*>& kept) const;

private:
    QFrame* m_container;
};
