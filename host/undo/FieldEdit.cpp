// SPDX-License-Identifier: MIT
#include "undo/FieldEdit.h"

#include "text/NodeText.h"
#include "text/ValueBytes.h"
#include "text/ValueEntry.h"
#include "text/ValueText.h"

#include <xsg/core/SoMField.h>
#include <xsg/fields/SoSFEnum.h>

#include <QCoreApplication>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int TextLimit = 24;
constexpr int LeastGap = 8; // values that are the same, between two runs
constexpr std::size_t ObjectBytes = 256;

QString tr(const char* text)
{
    return QCoreApplication::translate("FieldEdit", text);
}

// Null where the type cannot be instantiated.
std::unique_ptr<SoField> copyOf(const SoField& field)
{
    std::unique_ptr<SoTypedObject> object(field.getTypeId().createInstance());
    auto* copy = dynamic_cast<SoField*>(object.get());
    if (!copy)
        return nullptr;
    static_cast<void>(object.release());
    std::unique_ptr<SoField> owned(copy);
    auto* names = dynamic_cast<SoSFEnum*>(copy);
    if (const auto* original = dynamic_cast<const SoSFEnum*>(&field); names && original) {
        int count = 0;
        const int* values = nullptr;
        const SbName* texts = nullptr;
        original->getEnums(count, values, texts);
        names->setEnums(count, values, texts);
    }
    return copy->copyFrom(field) ? std::move(owned) : nullptr;
}

SoMField& list(SoField& field)
{
    return static_cast<SoMField&>(field);
}

const SoMField& list(const SoField& field)
{
    return static_cast<const SoMField&>(field);
}

void append(SoMField& to, const SoMField& from, int start, int count)
{
    to.replaceValues(to.getNum(), 0, from, start, count);
}

std::size_t bytesOf(const SoField* value)
{
    return value ? ObjectBytes + valueBytes(*value) : 0;
}

QString sliceText(const SoMField& values, int start, int count, int limit = TextLimit)
{
    const std::unique_ptr<SoMField> part = values.makeSlice();
    if (!part || !part->replaceValues(0, 0, values, start, count))
        return {};
    return valueText(*part, limit);
}

} // namespace

FieldEdit::FieldEdit(SoField& field)
    : m_field(field)
    , m_list(dynamic_cast<SoMField*>(&field))
    , m_flagsBefore(flags())
    , m_flagsAfter(m_flagsBefore)
{
}

FieldEdit::~FieldEdit() = default;

FieldEdit::Flags FieldEdit::flags() const
{
    m_field.evaluate(); // which may take the default flag
    return {m_field.isIgnored(), m_field.isDefault()};
}

void FieldEdit::aboutToWrite(int start, int removed)
{
    m_isStale = true;
    if (m_list)
        coverList(start, removed);
    else if (removed != 0 && !m_before)
        m_before = copyOf(m_field);
}

int FieldEdit::coveredNow() const
{
    return m_before ? list(*m_before).getNum() + m_list->getNum() - m_countBefore : 0;
}

// The part that was written grows on both sides, by values that nobody has changed yet.
void FieldEdit::coverList(int start, int removed)
{
    if (!m_before) {
        std::unique_ptr<SoMField> slice = m_list->makeSlice();
        if (!slice)
            return;
        m_before = std::move(slice);
        m_countBefore = m_list->getNum();
        m_start = start;
    }
    const int count = m_list->getNum();
    const int last = std::min(count, removed < 0 ? count : start + removed);
    SoMField& before = list(*m_before);
    if (start < m_start) {
        // At least as many as there are, so that a walk towards the beginning moves each value a few times
        // only.
        const int first = std::max(0, std::min(start, m_start - before.getNum()));
        before.replaceValues(0, 0, *m_list, first, m_start - first);
        m_start = first;
    }
    const int end = m_start + coveredNow();
    if (last > end)
        append(before, *m_list, end, last - end);
}

void FieldEdit::compare()
{
    if (!std::exchange(m_isStale, false))
        return;
    m_flagsAfter = flags();
    m_runs.clear();
    m_after.reset();
    if (!m_before)
        return;
    if (m_list) {
        compareLists();
        keepListAfter();
    } else if (!m_before->isSame(m_field)) {
        m_runs.push_back({0, 1, 1});
        m_after = copyOf(m_field);
    }
}

void FieldEdit::compareLists()
{
    const int before = list(*m_before).getNum();
    const int now = std::clamp(coveredNow(), 0, std::max(0, m_list->getNum() - m_start));
    if (now == before)
        compareSameCount(before);
    else
        compareOtherCount(now);
}

void FieldEdit::compareSameCount(int count)
{
    const SoMField& before = list(*m_before);
    for (int i = 0; i < count; ++i) {
        if (before.isSameValue(i, *m_list, m_start + i))
            continue;
        const int end = m_runs.empty() ? -1 : m_runs.back().start + m_runs.back().before;
        if (end < 0 || i - end >= LeastGap)
            m_runs.push_back({i, 0, 0});
        m_runs.back().before = m_runs.back().after = i + 1 - m_runs.back().start;
    }
}

void FieldEdit::compareOtherCount(int count)
{
    const SoMField& before = list(*m_before);
    const int had = before.getNum();
    const int common = std::min(had, count);
    int head = 0;
    while (head < common && before.isSameValue(head, *m_list, m_start + head))
        ++head;
    int tail = 0;
    while (tail < common - head && before.isSameValue(had - 1 - tail, *m_list, m_start + count - 1 - tail))
        ++tail;
    m_runs.push_back({head, had - head - tail, count - head - tail});
}

void FieldEdit::keepListAfter()
{
    if (m_runs.empty())
        return;
    std::unique_ptr<SoMField> after = m_list->makeSlice();
    for (const Run& run : m_runs)
        append(*after, *m_list, m_start + run.start, run.after);
    m_after = std::move(after);
}

void FieldEdit::close()
{
    if (std::exchange(m_isClosed, true))
        return;
    compare();
    if (m_runs.empty())
        m_before.reset();
    else if (m_list)
        keepListBefore();
}

void FieldEdit::completeLater()
{
    if (!m_isClosed) {
        m_isStale = true;
        return compare();
    }
    if (m_runs.empty() || !fits(&Run::after))
        return;
    m_flagsAfter = flags();
    if (!m_list) {
        m_after = copyOf(m_field);
        if (m_before->isSame(m_field))
            m_runs.clear();
        return;
    }
    std::unique_ptr<SoMField> after = m_list->makeSlice();
    for (const Run& run : m_runs)
        append(*after, *m_list, run.start, run.after);
    if (after->isSame(*m_before))
        m_runs.clear();
    m_after = std::move(after);
}

void FieldEdit::keepListBefore()
{
    std::unique_ptr<SoMField> before = m_list->makeSlice();
    for (Run& run : m_runs) {
        append(*before, list(*m_before), run.start, run.before);
        run.start += m_start;
    }
    m_before = std::move(before);
    m_runs.shrink_to_fit();
}

bool FieldEdit::undo()
{
    return apply(m_before.get(), &Run::after, &Run::before, m_flagsBefore);
}

bool FieldEdit::redo()
{
    return apply(m_after.get(), &Run::before, &Run::after, m_flagsAfter);
}

bool FieldEdit::apply(const SoField* value, int Run::*present, int Run::*wanted, Flags wantedFlags)
{
    const bool isWritten = !m_runs.empty();
    if (isWritten && (!value || !fits(present) || !write(*value, present, wanted)))
        return false;
    setFlags(wantedFlags, isWritten);
    return true;
}

// Where values were inserted or removed, their place is known only while the list has its length.
bool FieldEdit::fits(int Run::*present) const
{
    if (!m_list)
        return true;
    const int count = m_list->getNum();
    const auto isInside = [&](const Run& run) { return run.start + run.*present <= count; };
    const Run& first = m_runs.front();
    const int expected = m_countBefore + (first.*present - first.before);
    return first.before == first.after ? std::all_of(m_runs.begin(), m_runs.end(), isInside)
                                       : count == expected;
}

bool FieldEdit::write(const SoField& value, int Run::*present, int Run::*wanted)
{
    if (!m_list)
        return m_field.copyFrom(value);
    int from = 0;
    for (const Run& run : m_runs) {
        if (!m_list->replaceValues(run.start, run.*present, list(value), from, run.*wanted))
            return false;
        from += run.*wanted;
    }
    return true;
}

void FieldEdit::setFlags(Flags wanted, bool isWritten)
{
    const bool isNoted = isWritten || m_field.isIgnored() != wanted.isIgnored;
    if (m_field.isDefault() != wanted.isDefault)
        m_field.setDefault(wanted.isDefault);
    if (m_field.isIgnored() != wanted.isIgnored)
        m_field.setIgnored(wanted.isIgnored);
    if (!isNoted)
        m_field.touch();
}

bool FieldEdit::setFormer(const QString& text)
{
    std::unique_ptr<SoField> value = m_list || m_isClosed ? nullptr : copyOf(m_field);
    if (!value || !setFromText(*value, text))
        return false;
    m_before = std::move(value);
    m_flagsBefore.isDefault = false;
    m_isStale = true;
    return true;
}

std::unique_ptr<SoField> FieldEdit::makeFormer() const
{
    std::unique_ptr<SoField> value = copyOf(m_before && !m_list ? *m_before : m_field);
    if (value && m_list && m_before)
        list(*value).replaceValues(m_start, coveredNow(), list(*m_before), 0, list(*m_before).getNum());
    if (value)
        value->setDefault(m_flagsBefore.isDefault);
    if (value)
        value->setIgnored(m_flagsBefore.isIgnored);
    return value;
}

bool FieldEdit::writeFormer()
{
    const bool isWritten = !m_runs.empty();
    if (isWritten && m_list) {
        const int covered = coveredNow();
        if (covered < 0 || m_start + covered > m_list->getNum() ||
            !m_list->replaceValues(m_start, covered, list(*m_before), 0, list(*m_before).getNum()))
            return false;
    } else if (isWritten && !m_field.copyFrom(*m_before)) {
        return false;
    }
    setFlags(m_flagsBefore, isWritten);
    return true;
}

QString FieldEdit::formerText(int limit) const
{
    return partText(m_before.get(), &Run::before, m_flagsBefore, limit);
}

QString FieldEdit::presentText(int limit) const
{
    return partText(m_after.get(), &Run::after, m_flagsAfter, limit);
}

QString FieldEdit::partText(const SoField* value, int Run::*count, Flags shown, int limit) const
{
    if (m_runs.empty() && m_flagsBefore.isIgnored != m_flagsAfter.isIgnored)
        return shown.isIgnored ? tr("ignored") : tr("not ignored");
    if (m_runs.empty())
        return shown.isDefault ? tr("default") : valueText(m_field, limit);
    if (!m_list)
        return valueText(*value, limit);
    const Run& run = m_runs.front();
    if (m_runs.size() > 1)
        return tr("%1 values").arg(countChanged());
    const int start = value == m_before.get() ? run.start : 0;
    if (m_countBefore <= 1 && m_list->getNum() <= 1)
        return sliceText(list(*value), start, run.*count, limit);
    return run.*count == 0 ? tr("none")
                           : QStringLiteral("[%1]: %2")
                                 .arg(m_start + run.start)
                                 .arg(sliceText(list(*value), start, run.*count, limit));
}

int FieldEdit::countChanged() const
{
    int count = 0;
    for (const Run& run : m_runs)
        count += std::max(run.before, run.after);
    return std::max(count, 1);
}

std::size_t FieldEdit::bytes() const
{
    return sizeof(*this) + m_runs.capacity() * sizeof(Run) + bytesOf(m_before.get()) + bytesOf(m_after.get());
}

QString FieldEdit::text() const
{
    const QString name = toQString(m_field.getName());
    if (m_runs.empty())
        return name + QStringLiteral(": ") + flagsText();
    if (m_list)
        return listText(name);
    const SoField& after = m_after ? *m_after : m_field;
    return QStringLiteral("%1: %2 → %3")
        .arg(name, valueText(*m_before, TextLimit), valueText(after, TextLimit));
}

QString FieldEdit::listText(const QString& name) const
{
    const Run& run = m_runs.front();
    if (run.before != run.after)
        return tr("%1: %2 → %3 values")
            .arg(name, QString::number(m_countBefore),
                 QString::number(m_countBefore + run.after - run.before));
    if (m_runs.size() == 1 && run.before == 1)
        return name + QStringLiteral("[%1]: %2 → %3")
                          .arg(m_isClosed ? run.start : m_start + run.start)
                          .arg(sliceText(list(*m_before), m_isClosed ? 0 : run.start, 1),
                               sliceText(list(*m_after), 0, 1));
    int changed = 0;
    for (const Run& each : m_runs)
        changed += each.before;
    return tr("%1: %2 values changed").arg(name, QString::number(changed));
}

QString FieldEdit::flagsText() const
{
    if (m_flagsBefore.isIgnored != m_flagsAfter.isIgnored)
        return m_flagsAfter.isIgnored ? tr("ignored") : tr("no longer ignored");
    return m_flagsAfter.isDefault ? tr("default") : tr("no longer default");
}

} // namespace scopix
