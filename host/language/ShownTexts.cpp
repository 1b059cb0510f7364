// SPDX-License-Identifier: MIT
#include "language/ShownTexts.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTreeWidget>

namespace scopix
{

namespace
{

constexpr const char* Properties[] = {"text",
                                      "title",
                                      "windowTitle",
                                      "toolTip",
                                      "statusTip",
                                      "whatsThis",
                                      "placeholderText",
                                      "accessibleName",
                                      "accessibleDescription",
                                      "suffix",
                                      "prefix",
                                      "specialValueText"};

QString translated(const Languages& languages, const Languages::Asked& asked)
{
    const char* comment = asked.comment.isNull() ? nullptr : asked.comment.constData();
    const QString text = languages.translate(asked.context, asked.source, comment);
    return text.isEmpty() ? QString::fromUtf8(asked.source) : text;
}

// What a user types is nobody's text.
bool isTyped(const QObject& object, const char* property)
{
    return qobject_cast<const QLineEdit*>(&object) && qstrcmp(property, "text") == 0;
}

template <class Again>
void showItemsAgain(QObject& object, const Again& again)
{
    if (auto* combo = qobject_cast<QComboBox*>(&object)) {
        for (int i = 0; i < combo->count(); ++i)
            combo->setItemText(i, again(combo->itemText(i)));
    } else if (auto* list = qobject_cast<QListWidget*>(&object)) {
        for (int i = 0; i < list->count(); ++i)
            list->item(i)->setText(again(list->item(i)->text()));
    } else if (auto* tree = qobject_cast<QTreeWidget*>(&object)) {
        for (int i = 0; i < tree->columnCount(); ++i)
            tree->headerItem()->setText(i, again(tree->headerItem()->text(i)));
    } else if (auto* bar = qobject_cast<QTabBar*>(&object)) {
        for (int i = 0; i < bar->count(); ++i)
            bar->setTabText(i, again(bar->tabText(i)));
    }
}

} // namespace

ShownTexts::ShownTexts(QHash<QString, Languages::Asked> said)
    : m_said(std::move(said))
{
    for (auto each = m_said.cbegin(); each != m_said.cend(); ++each) {
        if (each.key().contains(QLatin1Char('%')))
            addPattern(each.key(), *each);
    }
}

// One of arguments alone would be found everywhere.
void ShownTexts::addPattern(const QString& text, const Languages::Asked& asked)
{
    static const QRegularExpression Place(QStringLiteral("%L?\\d|%n"));
    Pattern pattern{{}, {}, asked};
    QString expression;
    int end = 0;
    int letters = 0;
    for (auto each = Place.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch place = each.next();
        const QString between = text.mid(end, place.capturedStart() - end);
        letters += between.trimmed().size();
        expression += QRegularExpression::escape(between) + QStringLiteral("(.*)");
        pattern.places.append(place.captured());
        end = place.capturedEnd();
    }
    letters += text.mid(end).trimmed().size();
    if (pattern.places.isEmpty() || letters < 3)
        return;
    expression += QRegularExpression::escape(text.mid(end));
    pattern.expression.setPattern(QRegularExpression::anchoredPattern(expression));
    pattern.expression.setPatternOptions(QRegularExpression::DotMatchesEverythingOption);
    m_patterns.push_back(pattern);
}

QString ShownTexts::again(const QString& shown, const Languages& languages) const
{
    const auto known = m_said.find(shown);
    if (known != m_said.end())
        return translated(languages, *known);
    for (const Pattern& pattern : m_patterns) {
        const QRegularExpressionMatch match = pattern.expression.match(shown);
        if (!match.hasMatch())
            continue;
        QString text = translated(languages, pattern.asked);
        for (int i = 0; i < pattern.places.size(); ++i)
            text.replace(pattern.places[i], again(match.captured(i + 1), languages));
        return text;
    }
    return shown;
}

void ShownTexts::showAgain(QObject& object, const Languages& languages) const
{
    for (const char* property : Properties) {
        const QString shown = isTyped(object, property) ? QString() : object.property(property).toString();
        const QString text = shown.isEmpty() ? QString() : again(shown, languages);
        if (text != shown)
            object.setProperty(property, text);
    }
    showItemsAgain(object, [&](const QString& shown) { return again(shown, languages); });
}

void ShownTexts::showAgain(const Languages& languages) const
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->parentWidget())
            continue; // found among the children of that
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(window, &change);
        showAgain(*window, languages);
        for (auto* each : window->findChildren<QObject*>())
            showAgain(*each, languages);
    }
    for (QWidget* widget : QApplication::allWidgets())
        widget->update();
}

} // namespace scopix
