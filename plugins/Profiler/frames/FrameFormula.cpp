// SPDX-License-Identifier: MIT
#include "frames/FrameFormula.h"

#include <scopix/SpxSentence.h>
#include <xsg/counters/SoPerfCounterManager.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace profiler
{

namespace
{

constexpr double NotKnown = std::numeric_limits<double>::quiet_NaN();
constexpr int MostNested = 16;

// Where the parenthesis ends that opens at `open`; -1: nowhere.
int closing(const QString& text, int open)
{
    int depth = 0;
    for (int i = open; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return -1;
}

// The time after the last comma, in seconds; 0 where there is none.
double takeTime(QString& arguments)
{
    static const QRegularExpression Time(
        QString::fromLatin1(",\\s*([0-9]+(?:\\.[0-9]+)?)\\s*(ms|s|min)\\s*$"));
    const QRegularExpressionMatch match = Time.match(arguments);
    if (!match.hasMatch())
        return 0;
    const double number = match.captured(1).toDouble();
    const QString unit = match.captured(2);
    arguments.truncate(match.capturedStart());
    return unit == QLatin1String("ms") ? number / 1000 : unit == QLatin1String("min") ? number * 60 : number;
}

double valueOf(const SoFrameColumn& column, std::size_t frame)
{
    const std::int64_t value = column.values[frame];
    return column.isKnown(value) ? column.getShown(value) : NotKnown;
}

std::vector<double> secondsOf(const SoFrameRecording& frames)
{
    std::vector<double> seconds;
    if (const SoFrameColumn* begin = frames.findColumn("Begin")) {
        for (const std::int64_t time : begin->values)
            seconds.push_back(static_cast<double>(time) * 1e-9);
    }
    seconds.resize(frames.getNumFrames());
    return seconds;
}

std::vector<std::string> namesOf(const SoFrameRecording& frames)
{
    std::vector<std::string> names;
    for (const SoFrameColumn& column : frames.columns)
        names.push_back(column.name);
    return names;
}

void dropFirst(std::vector<double>& values, std::uint64_t count)
{
    const auto gone = std::min<std::uint64_t>(count, values.size());
    values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(gone));
}

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == '_' || c == '"';
}

} // namespace

FrameFormula::FrameFormula(const QString& text)
    : m_text(text.trimmed())
{
    expandCounters();
    takeWindows();
}

// Counters that are computed from two others are not noted with frames; these are.
void FrameFormula::expandCounters()
{
    QString text = m_text;
    for (int i = 0; i < MostNested; ++i) {
        const QString before = text;
        for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
            if (!counter->isCustom())
                continue;
            const QString name = QString::fromLatin1(counter->getName().getString());
            const QRegularExpression word(QLatin1String("(?<![\\w\"])\"?") +
                                          QRegularExpression::escape(name) + QLatin1String("\"?(?![\\w\"])"));
            text.replace(word, QStringLiteral("(\"%1\" %2 \"%3\")")
                                   .arg(QString::fromLatin1(counter->getFirstParent().getString()),
                                        QString::fromLatin1(counter->getOperation().getString()),
                                        QString::fromLatin1(counter->getSecondParent().getString())));
            if (text.size() > int(SpxExpression::MaximumLength))
                break;
        }
        if (text == before)
            break;
    }
    m_formula = text.toStdString();
}

void FrameFormula::takeWindows()
{
    static const QRegularExpression Call(QString::fromLatin1("\\b(rate|mean)\\s*\\("));
    QString text = QString::fromStdString(m_formula);
    for (int from = 0; from < text.size();) {
        const QRegularExpressionMatch match = Call.match(text, from);
        const int close = match.hasMatch() ? closing(text, match.capturedEnd() - 1) : -1;
        if (close < 0)
            break;
        QString arguments = text.mid(match.capturedEnd(), close - match.capturedEnd());
        const bool isRate = match.captured(1) == QLatin1String("rate");
        const double seconds = isRate ? 0 : takeTime(arguments);
        from = match.capturedEnd();
        if (!isRate && seconds <= 0)
            continue; // the mean of several values of one frame
        const QString name = QStringLiteral("window_%1").arg(m_windows.size());
        m_windows.push_back(
            {isRate ? Window::Rate : Window::Mean, std::make_unique<FrameFormula>(arguments), seconds});
        text.replace(match.capturedStart(), close + 1 - match.capturedStart(), name);
        from = match.capturedStart() + name.size();
    }
    m_formula = text.toStdString();
}

std::vector<double> FrameFormula::evaluate(const SoFrameRecording& frames)
{
    m_isCompiled = false; // starts again
    return follow(frames, 0, 0);
}

const std::vector<double>& FrameFormula::follow(const SoFrameRecording& frames, std::uint64_t series,
                                                std::uint64_t first)
{
    const std::vector<std::string> columns = namesOf(frames);
    const bool isSame = m_isCompiled && columns == m_columns && series == m_series && first >= m_first &&
                        first + frames.getNumFrames() >= m_first + m_values.size();
    if (!isSame)
        restart(columns);
    else
        dropFirst(m_values, first - m_first);
    for (Window& window : m_windows) {
        if (isSame)
            dropFirst(window.values, first - m_first);
    }
    m_series = series;
    m_first = first;
    if (followWindows(frames, series, first) && m_expression.isValid())
        compute(frames);
    else
        m_values.clear();
    return m_values;
}

void FrameFormula::restart(const std::vector<std::string>& columns)
{
    m_isCompiled = true;
    m_columns = columns;
    m_values.clear();
    SpxExpressionSettings settings;
    settings.variables = columns;
    for (Window& window : m_windows) {
        settings.variables.push_back("window_" + std::to_string(&window - m_windows.data()));
        window.values.clear();
        window.inner->m_isCompiled = false;
    }
    m_expression = SpxExpression(m_formula, settings);
    m_problem =
        m_expression.isValid() ? QString() : SpxSentence::translated(m_expression.getError().sentence);
}

// False where one of them does not hold.
bool FrameFormula::followWindows(const SoFrameRecording& frames, std::uint64_t series, std::uint64_t first)
{
    const std::vector<double> seconds = m_windows.empty() ? std::vector<double>() : secondsOf(frames);
    for (Window& window : m_windows) {
        window.inner->follow(frames, series, first);
        if (!window.inner->getProblem().isEmpty()) {
            m_problem = window.inner->getProblem();
            return false;
        }
        extend(window, seconds);
    }
    return true;
}

void FrameFormula::compute(const SoFrameRecording& frames)
{
    std::vector<double> values(frames.columns.size() + m_windows.size());
    for (std::size_t frame = m_values.size(); frame < frames.getNumFrames(); ++frame, ++m_numComputed) {
        for (std::size_t i = 0; i < frames.columns.size(); ++i)
            values[i] = valueOf(frames.columns[i], frame);
        for (std::size_t i = 0; i < m_windows.size(); ++i)
            values[frames.columns.size() + i] = m_windows[i].values[frame];
        m_values.push_back(m_expression.evaluate(values.data()));
    }
}

void FrameFormula::extend(Window& window, const std::vector<double>& seconds)
{
    if (window.kind == Window::Mean)
        return extendMean(window, seconds);
    const std::vector<double>& inner = window.inner->m_values;
    for (std::size_t i = window.values.size(); i < inner.size(); ++i)
        window.values.push_back(i == 0 ? NotKnown : inner[i] / (seconds[i] - seconds[i - 1]));
}

void FrameFormula::extendMean(Window& window, const std::vector<double>& seconds)
{
    const std::vector<double>& inner = window.inner->m_values;
    const std::size_t begin = window.values.size();
    double sum = 0;
    std::size_t count = 0;
    const auto add = [&](double value, int sign) {
        if (!std::isfinite(value))
            return;
        sum += sign * value;
        count += static_cast<std::size_t>(sign);
    };
    // The window of the first new frame, from its beginning.
    std::size_t first = begin;
    while (begin < inner.size() && first > 0 && seconds[begin] - seconds[first - 1] <= window.seconds)
        add(inner[--first], 1);
    for (std::size_t i = begin; i < inner.size(); ++i) {
        add(inner[i], 1);
        for (; seconds[i] - seconds[first] > window.seconds; ++first)
            add(inner[first], -1);
        window.values.push_back(count > 0 ? sum / static_cast<double>(count) : NotKnown);
    }
}

QString FrameFormula::getUnit(const SoFrameRecording& frames) const
{
    const std::string formula = QString::fromStdString(m_formula).remove('"').toStdString();
    if (const SoFrameColumn* column = frames.findColumn(formula))
        return QString::fromStdString(column->getShownUnit());
    if (m_windows.size() != 1 || formula != "window_0")
        return {};
    const QString inner = m_windows[0].inner->getUnit(frames);
    return m_windows[0].kind == Window::Rate ? inner + QStringLiteral("/s") : inner;
}

std::vector<SbName> FrameFormula::getNames() const
{
    std::vector<SbName> names;
    const QString text = QString::fromStdString(m_formula);
    for (int i = 0; i < text.size(); ++i) {
        const int begin = i;
        if (text[i] == '"')
            i = text.indexOf('"', i + 1);
        else
            while (i < text.size() && isWordPart(text[i]))
                ++i;
        if (i < 0)
            break;
        const QString word = text.mid(begin, i - begin).remove('"');
        if (!word.isEmpty())
            names.emplace_back(word.toLatin1().constData());
    }
    for (const Window& window : m_windows) {
        for (const SbName name : window.inner->getNames())
            names.push_back(name);
    }
    return names;
}

} // namespace profiler
