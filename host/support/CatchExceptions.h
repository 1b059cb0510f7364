// SPDX-License-Identifier: MIT
// Calls into plug-in code, out of which no exception may come.
#pragma once

#include <QCoreApplication>
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
        return text.isEmpty() ? QCoreApplication::translate("Exceptions", "an exception without a text")
                              : text;
    } catch (...) {
        return QCoreApplication::translate("Exceptions", "an exception of an unknown type");
    }
}

} // namespace scopix
