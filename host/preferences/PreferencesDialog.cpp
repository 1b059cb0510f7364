// SPDX-License-Identifier: MIT
#include "preferences/PreferencesDialog.h"

#include "preferences/SettingRow.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int WidthInCharacters = 92;
constexpr int HeightInLines = 30;
constexpr int TitlesInCharacters = 18;

QScrollArea* scrolled(QWidget* content, QWidget* parent)
{
    auto* scroll = new QScrollArea(parent);
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return scroll;
}

} // namespace

PreferencesDialog::PreferencesDialog(const std::vector<Setting>& settings, QWidget* parent)
    : QDialog(parent)
    , m_search(new QLineEdit)
    , m_titles(new QListWidget)
    , m_stack(new QStackedWidget)
    , m_nothing(new QLabel(tr("Nothing is called so. Try another word.")))
{
    setObjectName(QStringLiteral("preferences"));
    setWindowTitle(tr("Preferences"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_search->setObjectName(QStringLiteral("searchPreferences"));
    m_search->setPlaceholderText(tr("Find a setting"));
    m_search->setAccessibleName(tr("Find a setting"));
    m_search->setClearButtonEnabled(true);
    m_titles->setObjectName(QStringLiteral("preferencePages"));
    m_titles->setAccessibleName(tr("Pages"));
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_nothing->hide();
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_reset = m_buttons->addButton(tr("&Reset This Page"), QDialogButtonBox::ResetRole);
    auto* row = new QHBoxLayout;
    row->addWidget(m_titles);
    row->addWidget(m_stack, 1);
    row->addWidget(m_nothing, 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_search);
    column->addLayout(row, 1);
    column->addWidget(m_buttons);
    connect(m_search, &QLineEdit::textChanged, this, &PreferencesDialog::search);
    connect(m_titles, &QListWidget::currentRowChanged, this, [this](int row) {
        m_stack->setCurrentIndex(row);
        m_reset->setEnabled(row >= 0 && !m_pages[std::size_t(row)].rows.empty());
    });
    connect(m_reset, &QPushButton::clicked, this, &PreferencesDialog::resetPage);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    addSettings(settings);
    m_titles->setFixedWidth(std::max(fontMetrics().averageCharWidth() * TitlesInCharacters,
                                     m_titles->sizeHintForColumn(0) + 4 * m_titles->frameWidth()));
    m_titles->setCurrentRow(0);
    resize(fontMetrics().averageCharWidth() * WidthInCharacters, fontMetrics().lineSpacing() * HeightInLines);
}

PreferencesDialog::Page& PreferencesDialog::pageOf(const QString& title)
{
    for (Page& page : m_pages)
        if (page.title == title)
            return page;
    auto* content = new QWidget(m_stack);
    content->setLayout(new QVBoxLayout);
    static_cast<QVBoxLayout*>(content->layout())->addStretch();
    addPage(title, content, {});
    return m_pages.back();
}

void PreferencesDialog::addPage(const QString& title, QWidget* page, const QString& words)
{
    m_pages.push_back({title, words, {}});
    m_stack->addWidget(scrolled(page, m_stack));
    m_titles->addItem(title);
}

void PreferencesDialog::addSettings(const std::vector<Setting>& settings)
{
    for (const Setting& setting : settings) {
        Page& page = pageOf(setting.page);
        auto* scroll = static_cast<QScrollArea*>(m_stack->widget(int(&page - m_pages.data())));
        auto* column = static_cast<QVBoxLayout*>(scroll->widget()->layout());
        auto* row = new SettingRow(setting);
        connect(row, &SettingRow::failed, this, &PreferencesDialog::failed);
        column->insertWidget(column->count() - 1, row);
        page.rows.push_back(row);
    }
}

// The buttons, which stand below the pages, come after them.
void PreferencesDialog::orderTabs()
{
    QWidget* before = m_titles;
    QList<QWidget*> inputs = m_stack->findChildren<QWidget*>();
    inputs << m_reset << m_buttons->button(QDialogButtonBox::Close);
    for (QWidget* each : qAsConst(inputs)) {
        if (each->window() != this || !(each->focusPolicy() & Qt::TabFocus) || each->focusProxy())
            continue;
        setTabOrder(before, each);
        before = each;
    }
}

void PreferencesDialog::showSetting(const QString& key)
{
    m_search->clear();
    orderTabs();
    for (std::size_t at = 0; at < m_pages.size(); ++at)
        for (SettingRow* row : m_pages[at].rows)
            if (row->getSetting().key == key) {
                m_titles->setCurrentRow(int(at));
                row->getInput().setFocus();
                return;
            }
    m_titles->setCurrentRow(0);
}

void PreferencesDialog::search(const QString& text)
{
    int first = -1;
    for (std::size_t at = 0; at < m_pages.size(); ++at) {
        Page& page = m_pages[at];
        const Setting own{{}, page.title, page.words, {}, Setting::Kind::Switch, {}, 0, 0, {},
                          {}, {},         {},         {}};
        bool isFound = page.rows.empty() && fits(own, text);
        for (SettingRow* row : page.rows) {
            row->setVisible(fits(row->getSetting(), text));
            isFound = isFound || !row->isHidden();
        }
        m_titles->item(int(at))->setHidden(!isFound);
        if (isFound && first < 0)
            first = int(at);
    }
    m_nothing->setVisible(first < 0);
    m_stack->setVisible(first >= 0);
    const QListWidgetItem* current = m_titles->currentItem();
    if (first >= 0 && (!current || current->isHidden()))
        m_titles->setCurrentRow(first);
}

void PreferencesDialog::resetPage()
{
    for (SettingRow* row : m_pages[std::size_t(m_titles->currentRow())].rows)
        row->reset();
}

} // namespace scopix
