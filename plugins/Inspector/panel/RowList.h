// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxFieldPointer.h>

#include <QAbstractScrollArea>
#include <QPointer>

#include <vector>

class SoFieldContainer;

namespace inspector
{

class Row;

/// The fields of a node, or those that several nodes share, as rows below each other, with headings. A row's
/// widgets are made when it comes into view, so that a node of many fields opens as fast as one of few. Tab
/// goes through all rows in reading order. GUI thread only.
class RowList : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit RowList(QWidget* parent = nullptr);
    ~RowList() override;

    /// Shows the fields that all of these have by name and type. The last node is the current one, whose
    /// values and order are shown.
    void setNodes(const std::vector<SoFieldContainer*>& nodes);
    /// Shows what changed, in the rows that are in view.
    void refresh();
    /// Applies what is typed, and keeps what is dragged.
    void finish();
    /// Makes all rows anew, as after a change of how they show values.
    void rebuild();

    /// Only fields whose name, meaning, type or value has these words.
    void setFilter(const QString& words);
    void setOnlyChanged(bool only);
    int getNumShown() const;

    QSize sizeHint() const override;

signals:
    void fieldChosen(SoField* field);

protected:
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent* event) override;

private:
    struct Item {
        SpxFieldPointer field;
        std::vector<SpxFieldPointer> others; // of the other nodes
        QString heading;                     // above the row; "" for none
        QPointer<Row> row;
        int kind = 0;
        int lines = 1;
        bool isWide = false;
        bool isShown = true;
        int headingTop = 0;
        int top = 0;
        int height = 0;
    };

    static bool addOthers(Item& item, const std::vector<SoFieldContainer*>& nodes);
    static int kindOfAll(const Item& item);
    static bool isDefault(const Item& item);
    void describe(Item& item) const;
    bool passes(const Item& item) const;
    void filterItems();
    void placeItems();
    void showVisible();
    Row* rowOf(Item& item);
    void place(Item& item);
    bool isInView(const Item& item) const;
    void scrollTo(const Item& item);
    bool stepFocus(bool next);
    int lineHeight() const;
    bool isNarrow() const;

    std::vector<Item> m_items;
    QString m_filter;
    bool m_onlyChanged = false;
    bool m_isOfSeveral = false;
    int m_contentHeight = 0;
};

} // namespace inspector
