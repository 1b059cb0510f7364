// SPDX-License-Identifier: MIT
#include "panel/RowList.h"

#include "fields/FieldKind.h"
#include "fields/FieldOrder.h"
#include "fields/FieldText.h"
#include "fields/ToolTip.h"
#include "rows/Row.h"
#include "rows/RowFactory.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QApplication>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int Margin = 6;
constexpr int Space = 3;
constexpr int NarrowInCharacters = 46;
constexpr int NarrowForColors = 60;

QString headingAbove(const SoField& field)
{
    const SpxFieldDescription* known = SpxFieldDescription::find(field);
    return known ? headingOf(*known) : QString();
}

} // namespace

RowList::RowList(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("rowList"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setBackgroundRole(QPalette::Window);
}

RowList::~RowList() = default;

QSize RowList::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * NarrowInCharacters, lineHeight() * 12};
}

// False where one of the nodes has no such field.
bool RowList::addOthers(Item& item, const std::vector<SoFieldContainer*>& nodes)
{
    for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
        SoField* other = nodes[i]->getField(item.field->getName());
        if (!other || other->getTypeId() != item.field->getTypeId())
            return false;
        item.others.emplace_back(other);
    }
    return true;
}

// Lists of different lengths have nothing but being lists in common.
int RowList::kindOfAll(const Item& item)
{
    const FieldKind kind = kindOf(*item.field.get());
    const bool isSame =
        std::all_of(item.others.begin(), item.others.end(),
                    [kind](const SpxFieldPointer& other) { return !other || kindOf(*other.get()) == kind; });
    return int(isSame ? kind : FieldKind::List);
}

bool RowList::isDefault(const Item& item)
{
    return item.field->isDefault() &&
           std::all_of(item.others.begin(), item.others.end(),
                       [](const SpxFieldPointer& other) { return !other || other->isDefault(); });
}

void RowList::setNodes(const std::vector<SoFieldContainer*>& nodes)
{
    for (Item& item : m_items)
        delete item.row;
    m_items.clear();
    m_emptyText = nodes.size() > 1 ? tr("These nodes share no field.") : tr("This node has no fields.");
    for (SoField* field : nodes.empty() ? std::vector<SoField*>() : fieldsInOrder(*nodes.back())) {
        Item item;
        item.field = field;
        if (!addOthers(item, nodes))
            continue;
        item.heading = headingAbove(*field);
        describe(item);
        m_items.push_back(std::move(item));
    }
    verticalScrollBar()->setValue(0);
    filterItems();
}

void RowList::showNotice(const QString& sentence)
{
    setNodes({});
    m_emptyText = sentence;
    viewport()->update();
}

void RowList::describe(Item& item) const
{
    item.kind = kindOfAll(item);
    const bool isOwnKind = item.kind == int(kindOf(*item.field.get()));
    item.lines = isOwnKind ? linesOf(*item.field.get()) : 1;
    item.isWide = isOwnKind && inspector::isWide(*item.field.get());
}

void RowList::compare(Item& item, SoFieldContainer* other)
{
    SoField* field = other && item.field ? other->getField(item.field->getName()) : nullptr;
    if (field && (field == item.field.get() || field->getTypeId() != item.field->getTypeId()))
        field = nullptr;
    item.compared = field;
    if (item.row)
        item.row->compareWith(field);
}

void RowList::compareWith(SoFieldContainer* other)
{
    for (Item& item : m_items)
        compare(item, other);
}

void RowList::rebuild()
{
    finish();
    for (Item& item : m_items) {
        delete item.row;
        item.heading = item.field.get() ? headingAbove(*item.field.get()) : QString();
    }
    placeItems();
}

void RowList::refresh()
{
    bool isMoved = false;
    for (Item& item : m_items) {
        if (!item.row || !item.field || !isInView(item))
            continue;
        if (item.kind != kindOfAll(item)) { // a list of one value has become longer, or the like
            item.row->finish();
            delete item.row;
            describe(item);
            isMoved = true;
        } else {
            item.row->refresh();
        }
    }
    if (isMoved)
        placeItems();
}

void RowList::finish()
{
    for (const Item& item : m_items) {
        if (item.row)
            item.row->finish();
    }
}

void RowList::setFilter(const QString& words)
{
    m_filter = words.trimmed();
    filterItems();
}

void RowList::setOnlyChanged(bool only)
{
    m_onlyChanged = only;
    filterItems();
}

int RowList::getNumShown() const
{
    return int(std::count_if(m_items.begin(), m_items.end(), [](const Item& item) { return item.isShown; }));
}

bool RowList::passes(const Item& item) const
{
    const SoField* field = item.field.get();
    if (!field || (m_onlyChanged && isDefault(item)))
        return false;
    if (m_filter.isEmpty())
        return true;
    const SpxFieldDescription* known = SpxFieldDescription::find(*field);
    const QString text = SpxText::toQString(field->getName()) + QLatin1Char(' ') +
                         SpxText::toQString(field->getTypeId().getName()) + QLatin1Char(' ') +
                         summary(*field) + QLatin1Char(' ') + item.heading + QLatin1Char(' ') +
                         (known ? meaningOf(*known) : QString());
    const QStringList words = m_filter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

void RowList::filterItems()
{
    for (Item& item : m_items)
        item.isShown = passes(item);
    placeItems();
}

int RowList::lineHeight() const
{
    return fontMetrics().height() + 10;
}

// The name above the inputs, which then have the whole width. Colours have a swatch and more beside their
// numbers.
bool RowList::isStacked(const Item& item) const
{
    const int enough = FieldKind(item.kind) == FieldKind::Color ? NarrowForColors : NarrowInCharacters;
    return item.isWide && viewport()->width() < fontMetrics().averageCharWidth() * enough;
}

void RowList::placeItems()
{
    int y = Margin;
    const int captionLine = fontMetrics().height() + 4;
    QString heading;
    for (Item& item : m_items) {
        if (!item.heading.isEmpty())
            heading = item.heading;
        item.headingTop = -1;
        if (!item.isShown)
            continue;
        if (!heading.isEmpty()) {
            item.headingTop = y;
            y += lineHeight();
            heading.clear();
        }
        item.top = y;
        item.height = item.lines * lineHeight() + (isStacked(item) ? captionLine : 0);
        y += item.height + Space;
    }
    m_contentHeight = y + Margin;
    const int page = viewport()->height();
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setSingleStep(lineHeight());
    verticalScrollBar()->setRange(0, std::max(0, m_contentHeight - page));
    showVisible();
}

bool RowList::isInView(const Item& item) const
{
    const int top = item.top - verticalScrollBar()->value();
    return item.isShown && top < viewport()->height() && top + item.height > 0;
}

// A row with the focus or at work stays where it is, even out of view.
void RowList::showVisible()
{
    for (Item& item : m_items) {
        if (isInView(item))
            place(item);
        else if (item.row && item.isShown)
            item.row->move(Margin, item.top - verticalScrollBar()->value());
        else if (item.row)
            item.row->hide();
    }
    viewport()->update();
}

Row* RowList::rowOf(Item& item)
{
    if (!item.row && item.field) {
        item.row = makeRow(item.field.get(), item.others, FieldKind(item.kind), viewport());
        item.row->compareWith(item.compared.get());
        connect(item.row, &Row::chosen, this, [this, field = item.field] {
            if (field)
                emit fieldChosen(field.get());
        });
    }
    return item.row;
}

void RowList::place(Item& item)
{
    const bool isNew = !item.row;
    Row* row = rowOf(item);
    if (!row)
        return;
    row->setStacked(isStacked(item));
    row->setGeometry(Margin, item.top - verticalScrollBar()->value(), viewport()->width() - 2 * Margin,
                     item.height);
    if (!isNew)
        row->refresh();
    row->show();
}

void RowList::scrollTo(const Item& item)
{
    QScrollBar* bar = verticalScrollBar();
    if (item.top - Margin < bar->value())
        bar->setValue(item.top - Margin);
    else if (item.top + item.height + Margin > bar->value() + viewport()->height())
        bar->setValue(item.top + item.height + Margin - viewport()->height());
}

bool RowList::focusNextPrevChild(bool next)
{
    return stepFocus(next) || QAbstractScrollArea::focusNextPrevChild(next);
}

// To the input after the one with the focus, in its row or in the next row that has one.
bool RowList::stepFocus(bool next)
{
    QWidget* focus = QApplication::focusWidget();
    const auto holds = [focus](const Item& item) {
        return item.row && focus && item.row->isAncestorOf(focus);
    };
    const auto from = std::find_if(m_items.begin(), m_items.end(), holds);
    if (from == m_items.end())
        return false;
    const int step = next ? 1 : -1;
    for (int i = int(from - m_items.begin()); i >= 0 && i < int(m_items.size()); i += step) {
        Item& item = m_items[std::size_t(i)];
        if (!item.isShown || !rowOf(item))
            continue;
        if (!isInView(item))
            place(item);
        const QList<QWidget*> inputs = item.row->inputs();
        const int at = inputs.indexOf(focus);
        const int wanted = at >= 0 ? at + step : holds(item) ? -1 : next ? 0 : inputs.size() - 1;
        if (wanted < 0 || wanted >= inputs.size())
            continue;
        scrollTo(item);
        inputs[wanted]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void RowList::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    placeItems();
}

void RowList::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        placeItems();
}

void RowList::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    showVisible();
}

void RowList::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const int scrolled = verticalScrollBar()->value();
    QString heading;
    for (const Item& item : m_items) {
        if (!item.heading.isEmpty())
            heading = item.heading;
        if (!item.isShown || item.headingTop < 0)
            continue;
        const QRect place(Margin, item.headingTop - scrolled, viewport()->width() - 2 * Margin, lineHeight());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, heading);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(place.left() + painter.fontMetrics().horizontalAdvance(heading) + Margin,
                         place.center().y(), place.right(), place.center().y());
    }
    if (getNumShown() == 0) {
        painter.setFont(font());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                         int(Qt::AlignTop | Qt::AlignHCenter) | Qt::TextWordWrap,
                         m_items.empty() ? m_emptyText : tr("No field passes the filter."));
    }
}

} // namespace inspector
