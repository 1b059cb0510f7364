// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

/// The line edit of the field editors. It remembers the text that the field last gave it, so that a refresh
/// leaves alone what the user is typing, and Escape takes the typing back. So does leaving it with a text
/// that its validator does not accept, as "-" alone. Showing emits no signal.
class EdLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit EdLineEdit(QWidget* parent = nullptr);

    /// The field gives `text`. Nothing moves where it stands already, nor while typing waits to be applied
    /// and the field still gives what it gave before.
    void showText(const QString& text);
    /// Puts `text` here whatever stands here now; Escape still returns to what showText() was given.
    void putText(const QString& text);
    /// What showText() was last given; null before.
    const QString& shownText() const { return m_shownText; }
    bool isChanged() const { return text() != m_shownText; }
    /// Shows again what showText() was last given.
    void dropTyping();
    /// Another field comes: what was shown and typed for the last one is over.
    void forget();

    /// Emits editingFinished() also when it is left with its text unchanged.
    void setFinishingAlways(bool always) { m_finishingAlways = always; }
    /// Lets Escape go on to the parent after the typing was taken back, as a cell of a table needs it.
    void setEscapePassed(bool passed) { m_escapePassed = passed; }

signals:
    void typingTakenBack();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool isKeptByUser(const QFocusEvent* event) const;

    QString m_shownText;
    bool m_finishingAlways = false;
    bool m_escapePassed = false;
};
