// SPDX-License-Identifier: MIT
#include "export/ExportSink.h"

#include "support/LongWork.h"

#include <scopix/SpxSentence.h>

#include <QFile>

namespace scopix
{

namespace
{

constexpr std::size_t PieceBytes = std::size_t{1} << 20U;

} // namespace

ExportSink::ExportSink(const QString& path)
    : m_file(QFile::encodeName(path).toStdString())
    , m_isGood(m_file.open())
{
}

ExportSink& ExportSink::operator<<(std::string_view text)
{
    m_piece.append(text);
    if (m_piece.size() >= PieceBytes)
        flush();
    return *this;
}

void ExportSink::flush()
{
    LongWork::goOn();
    m_isGood = m_isGood && m_file.write(m_piece);
    m_piece.clear();
}

QString ExportSink::finish()
{
    flush();
    m_isGood = m_isGood && m_file.commit();
    return m_isGood ? QString() : SpxSentence::translated(m_file.getProblem());
}

} // namespace scopix
