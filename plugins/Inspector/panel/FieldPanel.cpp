// SPDX-License-Identifier: MIT
#include "panel/FieldPanel.h"

#include "fields/FieldText.h"
#include "fields/NodeDescription.h"
#include "panel/FlowRow.h"
#include "panel/NearbyNodes.h"
#include "panel/NodeMenu.h"
#include "panel/RowList.h"

#include <scopix/SpxPreviewServices.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <map>
#include <utility>

namespace inspector
{

namespace
{

constexpr int MostParents = 4;
constexpr int ShowEveryMs = 33;
constexpr std::size_t MostNodes = 2000; // whose fields are compared for each row
constexpr int Margin = 6;

void selectPath(const SoPath& path)
{
    if (SpxSceneServices* scene = SpxSceneServices::getInstance())
        scene->selectPath(path);
}

SoPath startOf(const SoPath& path, int length)
{
    SoPath start;
    for (int i = 0; i < length; ++i)
        start.append(path.getNode(i));
    return start;
}

QIcon iconOf(const SoNode* node, const QSize& size)
{
    const auto* material = dynamic_cast<const SoMaterial*>(node);
    if (!material || material->diffuseColor.getNum() == 0)
        return {};
    const SbVec3f& color = material->diffuseColor[0];
    const auto channel = [&](int i) {
        return int(std::clamp(color[i] > 0 ? color[i] : 0.F, 0.F, 1.F) * 255);
    };
    QPixmap pixmap(size);
    pixmap.fill(QColor(channel(0), channel(1), channel(2)));
    return pixmap;
}

} // namespace

FieldPanel::FieldPanel(Place place, QWidget* parent)
    : QWidget(parent)
    , m_place(place)
    , m_pin(new QAction(tr("&Pin"), this))
    , m_pinButton(new QToolButton)
    , m_before(new QToolButton)
    , m_title(new QLabel)
    , m_breadcrumb(new FlowRow)
    , m_nearby(new FlowRow)
    , m_filter(new QLineEdit)
    , m_onlyChanged(new QCheckBox(tr("Changed")))
    , m_rows(new RowList)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, Margin, 0, 0);
    layout->setSpacing(Margin / 2);
    layout->addLayout(makeHeader());
    layout->addLayout(makeFilter());
    layout->addWidget(m_rows, 1);
    connect(m_rows, &RowList::fieldChosen, this, &FieldPanel::choose);
    connect(&m_compared, &SpxWatcher::changed, this, &FieldPanel::refreshSoon);
    connect(&m_compared, &SpxWatcher::objectDestroyed, this, [this] { compareWith(nullptr); });
    // These work while the host refuses edits.
    for (QWidget* harmless : std::initializer_list<QWidget*>{m_breadcrumb, m_nearby, m_filter, m_onlyChanged,
                                                             m_pinButton, m_before})
        harmless->setProperty("editsNothing", true);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &FieldPanel::refresh);
    new NodeMenu(*this, *m_onlyChanged);
}

QLayout* FieldPanel::makeHeader()
{
    m_breadcrumb->setObjectName(QStringLiteral("breadcrumb"));
    m_nearby->setObjectName(QStringLiteral("nearby"));
    m_title->setObjectName(QStringLiteral("nodeTitle"));
    m_title->setTextFormat(Qt::RichText);
    m_title->setMinimumWidth(1);
    m_pin->setObjectName(QStringLiteral("pin"));
    m_pin->setToolTip(tr("Keeps this panel in a dock of its own, whatever is selected."));
    connect(m_pin, &QAction::triggered, this, &FieldPanel::pinRequested);
    addAction(m_pin); // the menus of the node and of the rows show it
    m_pinButton->setObjectName(QStringLiteral("pinButton"));
    m_pinButton->setDefaultAction(m_pin);
    m_pinButton->setText(tr("Pin"));
    m_pinButton->setAutoRaise(true);
    m_pinButton->setFocusPolicy(Qt::TabFocus);
    setPinnable(false);
    auto* header = new QVBoxLayout;
    header->setContentsMargins(Margin, 0, Margin, 0);
    header->setSpacing(2);
    header->addWidget(m_breadcrumb);
    auto* title = new QHBoxLayout;
    title->addWidget(m_title, 1);
    title->addWidget(m_before);
    title->addWidget(m_pinButton);
    makeBefore();
    header->addLayout(title);
    header->addWidget(m_nearby);
    return header;
}

void FieldPanel::makeBefore()
{
    m_before->setObjectName(QStringLiteral("before"));
    m_before->setText(tr("Before"));
    m_before->setToolTip(tr("Shows the values from when the scene was opened or last saved. Nothing can be "
                            "edited meanwhile. In the view and in the tree, B does this."));
    m_before->setCheckable(true);
    m_before->setAutoRaise(true);
    m_before->setFocusPolicy(Qt::TabFocus);
    SpxPreviewServices* preview = SpxPreviewServices::getInstance();
    if (!preview)
        return m_before->hide();
    m_before->setChecked(preview->isShowingFormer());
    connect(m_before, &QToolButton::clicked, this, &FieldPanel::showBefore);
    connect(preview, &SpxPreviewServices::formerShown, m_before, &QToolButton::setChecked);
}

void FieldPanel::showBefore(bool before)
{
    SpxPreviewServices* preview = SpxPreviewServices::getInstance();
    if (!preview)
        return;
    finish();
    QList<SoField*> fields;
    for (const SoFieldContainer* node : nodes())
        fields += preview->getEditedFields(node);
    if (!before) {
        preview->showPresent();
    } else if (!preview->showFormer(fields)) {
        m_before->setChecked(false);
        QToolTip::showText(m_before->mapToGlobal(QPoint(0, m_before->height())),
                           tr("Nothing here has been edited since the scene was opened or saved."), m_before);
    }
}

QLayout* FieldPanel::makeFilter()
{
    m_filter->setObjectName(QStringLiteral("fieldFilter"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the fields by name, meaning, type or value"));
    m_filter->setToolTip(tr("Shows the fields whose name, meaning, type or value has these words."));
    m_filter->setMinimumWidth(fontMetrics().averageCharWidth() * 8);
    m_onlyChanged->setObjectName(QStringLiteral("onlyChanged"));
    m_onlyChanged->setAccessibleName(tr("Only changed fields"));
    m_onlyChanged->setToolTip(tr("Shows the fields only that do not have their default value."));
    connect(m_filter, &QLineEdit::textChanged, m_rows, &RowList::setFilter);
    connect(m_onlyChanged, &QCheckBox::toggled, m_rows, &RowList::setOnlyChanged);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Margin, 0, Margin, 0);
    row->addWidget(m_filter, 1);
    row->addWidget(m_onlyChanged);
    return row;
}

// What is typed belongs to the nodes that are left.
void FieldPanel::setNodes(const std::vector<SoFieldContainer*>& nodes)
{
    if (nodes != this->nodes() || nodes.size() != m_watchers.size()) {
        m_later.stop();
        m_rows->finish();
        watch(nodes);
        if (nodes.size() > MostNodes)
            m_rows->showNotice(
                tr("More than %L1 nodes are selected; select fewer to edit what they share.").arg(MostNodes));
        else
            m_rows->setNodes(nodes);
    }
    showPlace();
}

void FieldPanel::watch(const std::vector<SoFieldContainer*>& nodes)
{
    m_watchers.clear();
    m_watchers.reserve(nodes.size());
    for (SoFieldContainer* node : nodes) {
        m_watchers.push_back(std::make_unique<SpxWatcher>());
        m_watchers.back()->watch(node);
        connect(m_watchers.back().get(), &SpxWatcher::changed, this, &FieldPanel::refreshSoon);
        connect(m_watchers.back().get(), &SpxWatcher::objectDestroyed, this, &FieldPanel::nodeDestroyed);
    }
}

std::vector<SoFieldContainer*> FieldPanel::nodes() const
{
    std::vector<SoFieldContainer*> all;
    for (const auto& watcher : m_watchers) {
        if (auto* node = dynamic_cast<SoFieldContainer*>(watcher->getObject()))
            all.push_back(node);
    }
    return all;
}

SoFieldContainer* FieldPanel::node() const
{
    return m_watchers.empty() ? nullptr : dynamic_cast<SoFieldContainer*>(m_watchers.back()->getObject());
}

void FieldPanel::refresh()
{
    m_sinceShown.start();
    if (node())
        m_rows->refresh();
}

void FieldPanel::refreshSoon()
{
    if (!m_sinceShown.isValid() || m_sinceShown.elapsed() >= ShowEveryMs)
        refresh();
    else if (!m_later.isActive())
        m_later.start(ShowEveryMs);
}

void FieldPanel::finish()
{
    m_rows->finish();
}

void FieldPanel::rebuild()
{
    m_rows->rebuild();
}

void FieldPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    rebuild();
    showPlace();
}

void FieldPanel::setPinnable(bool pinnable)
{
    m_pin->setVisible(pinnable);
    m_pin->setEnabled(pinnable);
    m_pinButton->setVisible(pinnable);
}

void FieldPanel::compareWith(SoFieldContainer* other)
{
    m_compared.watch(other);
    m_rows->compareWith(other);
}

void FieldPanel::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

// Esc leaves the filter: all fields are shown again.
void FieldPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_filter->hasFocus() && !m_filter->text().isEmpty())
        m_filter->clear();
    else
        QWidget::keyPressEvent(event);
}

void FieldPanel::showPlace()
{
    m_breadcrumb->clear();
    m_nearby->clear();
    if (!node())
        return m_title->clear();
    if (m_watchers.size() > 1) {
        m_title->setText(QStringLiteral("<b>%1</b>").arg(titleOf(nodes()).toHtmlEscaped()));
        m_title->setToolTip(tr("An edit changes all of them. Where they differ, it says “mixed”."));
        return;
    }
    const QString type = SpxText::toQString(node()->getTypeId().getName());
    const QString label = nodeLabel(*node());
    m_title->setText(QStringLiteral("<b>%1</b>").arg(label.toHtmlEscaped()) +
                     (label == type ? QString() : QStringLiteral(" &nbsp;") + type.toHtmlEscaped()));
    const NodeDescription* known = findNodeDescription(*node());
    m_title->setToolTip(QStringLiteral("<b>%1</b>").arg(label.toHtmlEscaped()) +
                        (known ? QStringLiteral("<br>") + meaningOf(*known).toHtmlEscaped() : QString()));
    const SpxSceneServices* scene = SpxSceneServices::getInstance();
    const SoPath path = scene ? scene->getSelectedPath() : SoPath();
    if (path.isEmpty() || path.getTail() != node())
        return;
    showBreadcrumb(path);
    showNearby(path);
}

// "3 nodes: 2 Material, 1 Cone"
QString FieldPanel::titleOf(const std::vector<SoFieldContainer*>& nodes) const
{
    std::map<QString, int> counts;
    for (const SoFieldContainer* node : nodes)
        ++counts[SpxText::toQString(node->getTypeId().getName())];
    std::vector<std::pair<QString, int>> byCount(counts.begin(), counts.end());
    std::stable_sort(byCount.begin(), byCount.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    QStringList parts;
    for (const auto& [type, count] : byCount)
        parts += QStringLiteral("%1 %2").arg(count).arg(type);
    return tr("%L1 nodes: %2").arg(nodes.size()).arg(parts.join(QStringLiteral(", ")));
}

void FieldPanel::showBreadcrumb(const SoPath& path)
{
    for (int i = std::max(0, path.getLength() - 1 - MostParents); i < path.getLength() - 1; ++i) {
        const SoPath parent = startOf(path, i + 1);
        const QString label = nodeLabel(*path.getNode(i));
        m_breadcrumb->add(label + QStringLiteral(" \u25B8"), tr("Select %1, which holds it").arg(label),
                          [parent] { selectPath(parent); });
    }
}

void FieldPanel::showNearby(const SoPath& path)
{
    const int side = fontMetrics().height() - 4;
    for (const SoPath& nearby : nearbyNodes(path)) {
        const SoNode* node = nearby.getTail();
        if (node == path.getTail())
            continue;
        const QString type = SpxText::toQString(node->getTypeId().getName());
        const QString label = nodeLabel(*node);
        QToolButton* button = m_nearby->add(
            label == type ? type : type + QLatin1Char(' ') + label,
            tr("Select the %1 that counts here").arg(label == type ? type : type + QLatin1Char(' ') + label),
            [nearby] { selectPath(nearby); });
        button->setIcon(iconOf(node, {side, side}));
    }
}

void FieldPanel::choose(SoField* field)
{
    if (m_place == Place::Pinned)
        return;
    if (SpxSceneServices* scene = SpxSceneServices::getInstance())
        scene->selectField(field);
}

} // namespace inspector
