// SPDX-License-Identifier: MIT
#include <xsg/files/SceneRecords.h>

#include <xsg/files/SceneReader.h>

void xsg::SceneRecords::add(std::string_view record)
{
    m_last[std::string(record.substr(0, record.find(':')))] = record;
}

// First no connection is in the way of another, then all are made, and what they notified others of is
// overwritten at last.
SbSentence xsg::SceneRecords::apply(const std::vector<SoNode*>& nodes) const
{
    using Part = SceneReader::RecordPart;
    for (const Part part : {Part::Disconnection, Part::Connection, Part::Value}) {
        for (const auto& [field, record] : m_last) {
            SceneReader reader(record);
            if (!reader.readRecord(nodes, part))
                return SbSentence("%1.", reader.getProblem());
        }
    }
    return {};
}
