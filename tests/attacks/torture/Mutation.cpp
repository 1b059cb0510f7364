// SPDX-License-Identifier: MIT
#include "Mutation.h"

#include <QList>

#include <algorithm>

namespace torture
{

namespace
{

struct Range {
    int at;
    int size;
};

Range anyRange(const QByteArray& content, Random& random)
{
    const int at = int(below(random, quint64(content.size())));
    const int most = int(below(random, 12)) == 0 ? content.size() : 200;
    return {at, int(below(random, quint64(std::min(most, content.size() - at)))) + 1};
}

void flipBits(QByteArray& content, Random& random)
{
    for (quint64 left = below(random, 8) + 1; left > 0; --left) {
        const int at = int(below(random, quint64(content.size())));
        content[at] = char(content[at] ^ (1 << below(random, 8)));
    }
}

void cut(QByteArray& content, Random& random)
{
    content.truncate(int(below(random, quint64(content.size()))));
}

void remove(QByteArray& content, Random& random)
{
    const Range range = anyRange(content, random);
    content.remove(range.at, range.size);
}

void clear(QByteArray& content, Random& random)
{
    const Range range = anyRange(content, random);
    content.replace(range.at, range.size, QByteArray(range.size, '\0'));
}

void repeat(QByteArray& content, Random& random)
{
    const Range range = anyRange(content, random);
    const QByteArray part = content.mid(range.at, std::min(range.size, 5000));
    content.insert(range.at, part.repeated(int(below(random, 20)) + 1));
}

void move(QByteArray& content, Random& random)
{
    const Range range = anyRange(content, random);
    const QByteArray part = content.mid(range.at, range.size);
    content.remove(range.at, range.size);
    content.insert(int(below(random, quint64(content.size()) + 1)), part);
}

void insert(QByteArray& content, Random& random)
{
    static const QList<QByteArray> words{
        "4294967295", "-1", "1e308",   "nan",      "-2147483648", "99999999999999999999", "{", "}", "[",
        "\"",         "@1", "<- @1.x", "\xff\xfe", "\x1b[31m"};
    content.insert(int(below(random, quint64(content.size()) + 1)), oneOf(random, words));
}

// The first number behind some place becomes another one.
void changeNumber(QByteArray& content, Random& random)
{
    static const QList<QByteArray> numbers{"0", "-1", "65536", "2147483647", "1000000000", "1e30", "-0.0"};
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    int at = int(below(random, quint64(content.size())));
    while (at < content.size() && !isDigit(content[at]))
        ++at;
    int end = at;
    while (end < content.size() && isDigit(content[end]))
        ++end;
    content.replace(at, end - at, oneOf(random, numbers));
}

} // namespace

QByteArray mutated(QByteArray content, Random& random)
{
    static const QList<void (*)(QByteArray&, Random&)> accidents{
        flipBits, cut, remove, clear, repeat, move, insert, insert, changeNumber, changeNumber};
    for (quint64 left = below(random, 4) + 1; left > 0 && !content.isEmpty(); --left)
        oneOf(random, accidents)(content, random);
    return content;
}

} // namespace torture
