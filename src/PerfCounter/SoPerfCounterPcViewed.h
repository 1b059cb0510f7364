// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include <memory>

/// One counter in the viewer: its name, its colour and its samples, the newest first.
class SoPerfCounterPcViewed
{
public:
    /// All samples start at 0.
    SoPerfCounterPcViewed(const QString& name, int historyLength);

    QString getName() const { return m_name; }
    QColor getColor() const { return {m_red, m_green, m_blue}; }
    void setColor(int red, int green, int blue);

    double* getHistory() const { return m_history.get(); }
    /// Takes the array over and frees the one before.
    void setHistory(double* history) { m_history.reset(history); }

    /// Says of the newest samples that nothing is known of them, as of the time before a counter was added.
    void setUnknown(int samples);

private:
    QString m_name;
    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    std::unique_ptr<double[]> m_history;
};
