// SPDX-License-Identifier: MIT
#include "SerializerStreams.h"

#include <osgDB/ObjectWrapper>
#include <osgDB/Registry>

#include <charconv>
#include <cstring>

namespace scopix::live
{

namespace
{

constexpr std::size_t mostText = 2000;

template <class T>
std::string shortest(T number)
{
    char text[40];
    const auto end = std::to_chars(text, text + sizeof(text), number).ptr;
    return {text, end};
}

} // namespace

ByteWriter::ByteWriter()
{
    makeStream();
}

const std::vector<std::uint8_t>* ByteWriter::write(osgDB::BaseSerializer& serializer,
                                                   const osg::Object& object)
{
    m_bytes->clear();
    const bool written = serializer.write(*m_stream, object);
    if (m_stream->getException()) // it stays, and would be taken for the next one's
        makeStream();
    return written ? &m_bytes->bytes() : nullptr;
}

void ByteWriter::makeStream()
{
    m_stream = std::make_unique<osgDB::OutputStream>(nullptr);
    m_stream->setOutputIterator(m_bytes);
}

ByteInput::ByteInput(std::vector<std::uint8_t> bytes)
    : m_bytes(std::move(bytes))
{
    setStream(&m_stream);
}

void ByteInput::readString(std::string& s)
{
    s.assign(m_bytes.begin() + std::ptrdiff_t(m_next), m_bytes.end());
    m_next = m_bytes.size();
}

void ByteInput::take(void* to, std::size_t size)
{
    std::memset(to, 0, size);
    m_isShort = m_isShort || m_bytes.size() - m_next < size;
    if (m_isShort)
        return;
    std::memcpy(to, m_bytes.data() + m_next, size);
    m_next += size;
}

void TextOutput::writeFloat(float f)
{
    put(shortest(f));
}

void TextOutput::writeDouble(double d)
{
    put(shortest(d));
}

void TextOutput::writeGLenum(const osgDB::ObjectGLenum& value)
{
    put(osgDB::Registry::instance()->getObjectWrapperManager()->getString("GL", int(value._value)));
}

void TextOutput::put(const std::string& word)
{
    if (!m_text.empty() && !word.empty())
        m_text += ' ';
    m_text += word;
    if (m_text.size() > mostText) {
        m_text += " …";
        throw Full();
    }
}

} // namespace scopix::live
