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
    /// False for what is half typed, as "-".
    bool isNumber() const;

public slots:
    /// Writes the element; the owner reads all the numbers itself.
    void setCurrentValue(QString text);

protected:
    /// Shows the element's number in place of what is no number.
    void focusOutEvent(QFocusEvent* event) override;

private:
    int m_index;
    EdTablePopupWidget* m_owner;
    QString m_shown;
};
