// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QAbstractItemView;

namespace scopix
{

/// Says in a list that has no rows what it is for. Owned by the list's viewport. GUI thread only.
class EmptyHint : public QLabel
{
    Q_OBJECT

public:
    /// The list has its model by now.
    EmptyHint(QAbstractItemView& view, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QAbstractItemView& m_view;
};

} // namespace scopix
