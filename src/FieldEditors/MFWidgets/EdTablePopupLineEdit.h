// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class EdTablePopupWidget;

/// One number of the grid in which a table popup editor edits an element.
class EdTablePopupLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    EdTablePopupLineEdit(int index, EdTablePopupWidget* owner, QWidget* parent, const char* name);

    int index() const { return m_index; }
    /// Shows a text that stands for the element's own number until the user changes it.
    void showText(const QString& text);
    bool isUntouched() const { return text() == m_shown; }

public slots:
    /// Writes the element; the owner reads all the numbers itself.
    void setCurrentValue(QString text);

private:
    int m_index;
    EdTablePopupWidget* m_owner;
    QString m_shown;
};
