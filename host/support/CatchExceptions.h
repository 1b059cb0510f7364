// SPDX-License-Identifier: MIT
// Calls into plug-in code, out of which no exception may come.
#pragma once

#include <QString>

#include <exception>

namespace scopix
{

/// Empty when the call returned, else what it threw, in words.
template <class Call>
QString catchExceptions(Call&& what)
{
    try {
        what();
        return {};
    } catch (const std::exception& error) {
        const QString text = QString::fromLocal8Bit(error.what());
        return text.isEmpty() ? QStringLiteral("an exception without a text") : text;
    } catch (...) {
        return QStringLiteral("an exception of an unknown type");
    }
}

} // namespace scopix
