// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <string>

/// Collects what Qt reports, from warnings upwards, while it lives; one at a time. What the platform says it
/// cannot do is left out. GUI thread only.
class QtWarnings
{
public:
    QtWarnings()
    {
        texts().clear();
        m_previous = qInstallMessageHandler(note);
    }
    QtWarnings(const QtWarnings&) = delete;
    QtWarnings& operator=(const QtWarnings&) = delete;
    ~QtWarnings() { qInstallMessageHandler(m_previous); }

    std::string all() const { return texts().join('\n').toStdString(); }

private:
    static QStringList& texts()
    {
        static QStringList s_texts;
        return s_texts;
    }
    static void note(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        const bool isWarning = type != QtDebugMsg && type != QtInfoMsg;
        if (isWarning && !text.startsWith(QLatin1String("This plugin does not support")))
            texts().append(text);
    }

    QtMessageHandler m_previous;
};
