// SPDX-License-Identifier: MIT
#pragma once

#include "rows/Row.h"

class QLineEdit;

namespace inspector
{

/// A line of text: a string or a name as it is, any other value as a scene file has it. A text of several
/// lines is shown, and edited in the Field Editor.
class TextRow : public Row
{
    Q_OBJECT

public:
    explicit TextRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    bool isBusy() const override;
    void finish() override;
    virtual QString shownText() const;
    /// False where the text is no value.
    virtual bool writeText(const QString& text);
    QLineEdit* line() const { return m_line; }
    void apply();

private:
    bool isPlain() const;

    QLineEdit* m_line = nullptr;
};

} // namespace inspector
