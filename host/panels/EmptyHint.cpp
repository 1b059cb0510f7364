// SPDX-License-Identifier: MIT
#include "panels/EmptyHint.h"

#include <QAbstractItemView>
#include <QEvent>

namespace scopix
{

namespace
{

constexpr int Margin = 12;

} // namespace

EmptyHint::EmptyHint(QAbstractItemView& view, const QString& text)
    : QLabel(text, view.viewport())
    , m_view(view)
{
    setObjectName(QStringLiteral("emptyHint"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(Margin);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view.viewport()->installEventFilter(this);
    const QAbstractItemModel* model = view.model();
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::update);
    update();
}

void EmptyHint::update()
{
    setGeometry(m_view.viewport()->rect());
    setVisible(m_view.model()->rowCount(m_view.rootIndex()) == 0);
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view.viewport() && event->type() == QEvent::Resize)
        update();
    return QLabel::eventFilter(watched, event);
}

} // namespace scopix
