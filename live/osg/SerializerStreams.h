// SPDX-License-Identifier: MIT
#pragma once

#include <osgDB/InputStream>
#include <osgDB/OutputStream>
#include <osgDB/Serializer>
#include <osgDB/StreamOperator>

#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace scopix::live
{

/// Takes the numbers that a serializer writes, one behind the other; brackets and names are left out.
class ByteOutput : public osgDB::OutputIterator
{
public:
    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }
    void clear() { m_bytes.clear(); }

    bool isBinary() const override { return true; }
    void writeBool(bool b) override { put(b); }
    void writeChar(char c) override { put(c); }
    void writeUChar(unsigned char c) override { put(c); }
    void writeShort(short s) override { put(s); }
    void writeUShort(unsigned short s) override { put(s); }
    void writeInt(int i) override { put(i); }
    void writeUInt(unsigned int i) override { put(i); }
    void writeLong(long l) override { put(l); }
    void writeULong(unsigned long l) override { put(l); }
    void writeInt64(GLint64 i) override { put(i); }
    void writeUInt64(GLuint64 i) override { put(i); }
    void writeFloat(float f) override { put(f); }
    void writeDouble(double d) override { put(d); }
    void writeString(const std::string& s) override { writeCharArray(s.data(), unsigned(s.size())); }
    void writeStream(std::ostream& (*)(std::ostream&)) override {}
    void writeBase(std::ios_base& (*)(std::ios_base&)) override {}
    void writeGLenum(const osgDB::ObjectGLenum& value) override { put(value._value); }
    void writeProperty(const osgDB::ObjectProperty&) override {}
    void writeMark(const osgDB::ObjectMark&) override {}
    void writeCharArray(const char* s, unsigned int size) override
    {
        m_bytes.insert(m_bytes.end(), s, s + size);
    }
    void writeWrappedString(const std::string& s) override { writeString(s); }
    void flush() override {}

private:
    template <class T>
    void put(T value)
    {
        const auto* start = reinterpret_cast<const std::uint8_t*>(&value);
        m_bytes.insert(m_bytes.end(), start, start + sizeof(T));
    }

    std::vector<std::uint8_t> m_bytes;
};

/// Writes with serializers again and again, with one stream, which is dear to make. For one thread.
class ByteWriter
{
public:
    ByteWriter();

    /// What the serializer writes of the object, until it is called again; none where it failed.
    const std::vector<std::uint8_t>* write(osgDB::BaseSerializer& serializer, const osg::Object& object);

private:
    osg::ref_ptr<ByteOutput> m_bytes = new ByteOutput;
    std::unique_ptr<osgDB::OutputStream> m_stream;

    void makeStream();
};

/// Gives a serializer what `ByteOutput` took. Where there is less than it asks for it gets zeros, and
/// `isComplete` says so.
class ByteInput : public osgDB::InputIterator
{
public:
    explicit ByteInput(std::vector<std::uint8_t> bytes);

    /// Whether everything there was has been asked for, and nothing else.
    bool isComplete() const { return !m_isShort && m_next == m_bytes.size(); }

    bool isBinary() const override { return true; }
    void readBool(bool& b) override { get(b); }
    void readChar(char& c) override { get(c); }
    void readSChar(signed char& c) override { get(c); }
    void readUChar(unsigned char& c) override { get(c); }
    void readShort(short& s) override { get(s); }
    void readUShort(unsigned short& s) override { get(s); }
    void readInt(int& i) override { get(i); }
    void readUInt(unsigned int& i) override { get(i); }
    void readLong(long& l) override { get(l); }
    void readULong(unsigned long& l) override { get(l); }
    void readFloat(float& f) override { get(f); }
    void readDouble(double& d) override { get(d); }
    void readString(std::string& s) override;
    void readStream(std::istream& (*)(std::istream&)) override {}
    void readBase(std::ios_base& (*)(std::ios_base&)) override {}
    void readGLenum(osgDB::ObjectGLenum& value) override { get(value._value); }
    void readProperty(osgDB::ObjectProperty&) override {}
    void readMark(osgDB::ObjectMark&) override {}
    void readCharArray(char* s, unsigned int size) override { take(s, size); }
    void readWrappedString(std::string& s) override { readString(s); }

private:
    template <class T>
    void get(T& value)
    {
        take(&value, sizeof(T));
    }
    void take(void* to, std::size_t size);

    std::vector<std::uint8_t> m_bytes;
    std::istringstream m_stream; // the base class looks at the state of one
    std::size_t m_next = 0;
    bool m_isShort = false;
};

/// Takes what a serializer writes as one line of text; throws `Full` once that is long enough to be shown.
class TextOutput : public osgDB::OutputIterator
{
public:
    struct Full {
    };

    const std::string& text() const { return m_text; }

    bool isBinary() const override { return false; }
    void writeBool(bool b) override { put(b ? "TRUE" : "FALSE"); }
    void writeChar(char c) override { put(std::to_string(int(c))); }
    void writeUChar(unsigned char c) override { put(std::to_string(int(c))); }
    void writeShort(short s) override { put(std::to_string(s)); }
    void writeUShort(unsigned short s) override { put(std::to_string(s)); }
    void writeInt(int i) override { put(std::to_string(i)); }
    void writeUInt(unsigned int i) override { put(std::to_string(i)); }
    void writeLong(long l) override { put(std::to_string(l)); }
    void writeULong(unsigned long l) override { put(std::to_string(l)); }
    void writeInt64(GLint64 i) override { put(std::to_string(i)); }
    void writeUInt64(GLuint64 i) override { put(std::to_string(i)); }
    void writeFloat(float f) override;
    void writeDouble(double d) override;
    void writeString(const std::string& s) override { put(s); }
    void writeStream(std::ostream& (*)(std::ostream&)) override {}
    void writeBase(std::ios_base& (*)(std::ios_base&)) override {}
    void writeGLenum(const osgDB::ObjectGLenum& value) override;
    void writeProperty(const osgDB::ObjectProperty& property) override { put(property._name); }
    void writeMark(const osgDB::ObjectMark& mark) override { put(mark._name); }
    void writeCharArray(const char*, unsigned int) override { put("…"); }
    void writeWrappedString(const std::string& s) override { put(s); }
    void flush() override {}

private:
    void put(const std::string& word);

    std::string m_text;
};

} // namespace scopix::live
