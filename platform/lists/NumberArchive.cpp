#include "platform/lists/NumberArchive.h"

#include "platform/files/FileManager.h"

#include <QByteArrayView>
#include <QtEndian>

#include <cstddef>
#include <limits>

namespace {

constexpr char beforeLittleEndian[] = "\x04\x0Bstreamtyped";
constexpr char beforeBigEndian[] = "\x04\x0Btypedstream";
constexpr quint16 systemVersion = 1000;

// An object of class NSNumber, whose superclasses are written with it, each with its version 0. The
// number stands behind the type code that its box was made with.
constexpr char beforeTypeCode[] = "\x84\x01@"
                                  "\x84\x84\x84\x08NSNumber\x00"
                                  "\x84\x84\x07NSValue\x00"
                                  "\x84\x84\x08NSObject\x00"
                                  "\x85"
                                  "\x84\x01*"
                                  "\x84\x84\x01";
constexpr char beforeNumber[] = "\x97";
constexpr char afterNumber[] = "\x86";

constexpr quint8 twoBytesFollow = 0x81;
constexpr quint8 fourBytesFollow = 0x82;
constexpr quint8 eightBytesFollow = 0x87;
constexpr quint8 firstReserved = 0x80;
constexpr quint8 lastReserved = 0x91;

template <std::size_t size>
QByteArrayView bytesOf(const char (&literal)[size])
{
    return {literal, qsizetype(size) - 1}; // with the NULs inside, without the one behind
}

/// An integer's bits as they stood, and how many there were.
struct Bits
{
    quint64 value;
    int width;

    bool highest() const { return (value >> (width - 1) & 1U) != 0; }
};

class Cursor
{
public:
    explicit Cursor(QByteArrayView bytes)
        : m_left(bytes)
    {
    }

    void setBigEndian(bool bigEndian) { m_bigEndian = bigEndian; }
    qsizetype left() const { return m_left.size(); }

    bool pass(QByteArrayView expected)
    {
        if (!m_left.startsWith(expected))
            return false;
        m_left = m_left.sliced(expected.size());
        return true;
    }

    std::optional<Bits> plain(int bytes)
    {
        if (m_left.size() < bytes)
            return std::nullopt;
        quint64 value = 0;
        for (int i = 0; i < bytes; ++i)
            value = value << 8 | quint8(m_left[m_bigEndian ? i : bytes - 1 - i]);
        m_left = m_left.sliced(bytes);
        return Bits{value, 8 * bytes};
    }

    std::optional<Bits> integer()
    {
        const std::optional<Bits> first = plain(1);
        if (!first || first->value < firstReserved || first->value > lastReserved)
            return first;
        switch (first->value) {
        case twoBytesFollow:
            return plain(2);
        case fourBytesFollow:
            return plain(4);
        case eightBytesFollow:
            return plain(8);
        default:
            return std::nullopt;
        }
    }

private:
    QByteArrayView m_left;
    bool m_bigEndian = false;
};

/// Single characters were archived as they are, without the marks of longer integers. Where one
/// byte is left before the end it is such a character; a longer rest is an integer as any other.
std::optional<Bits> readNumber(Cursor &cursor, char code)
{
    const bool isCharacter = code == 'c' || code == 'C';
    return isCharacter && cursor.left() == 1 + bytesOf(afterNumber).size() ? cursor.plain(1)
                                                                           : cursor.integer();
}

/// What was too short for its type was cut without loss: the bits of a signed number are to be
/// extended by its sign, and a negative one is no size; those of an unsigned one count as they
/// stand.
std::optional<quint64> toUnsigned(Bits bits, char code)
{
    const bool isSigned = code >= 'a';
    if (isSigned && bits.highest())
        return std::nullopt;
    return bits.value;
}

template <typename Number>
QByteArray marked(quint8 mark, Number number)
{
    QByteArray bytes(1 + qsizetype(sizeof number), char(mark));
    qToLittleEndian(number, bytes.data() + 1);
    return bytes;
}

/// The shortest form whose bits a reader that takes them as signed gets right too: older systems
/// extend the sign of whatever they read.
QByteArray encodedInteger(quint64 number)
{
    if (number < firstReserved)
        return QByteArray(1, char(number));
    if (number <= quint64(std::numeric_limits<qint16>::max()))
        return marked(twoBytesFollow, quint16(number));
    if (number <= quint64(std::numeric_limits<qint32>::max()))
        return marked(fourBytesFollow, quint32(number));
    return marked(eightBytesFollow, number);
}

} // namespace

std::optional<quint64> NumberArchive::decode(const QByteArray &archive)
{
    Cursor cursor(archive);
    const bool bigEndian = cursor.pass(bytesOf(beforeBigEndian));
    if (!bigEndian && !cursor.pass(bytesOf(beforeLittleEndian)))
        return std::nullopt;
    cursor.setBigEndian(bigEndian);
    // The writing system's version: whichever it was, the format is this one.
    if (!cursor.integer() || !cursor.pass(bytesOf(beforeTypeCode)))
        return std::nullopt;
    const std::optional<Bits> code = cursor.plain(1);
    if (!code || !QByteArrayView("cCsSiIlLqQ").contains(char(code->value)))
        return std::nullopt;
    if (!cursor.pass(bytesOf(beforeNumber)))
        return std::nullopt;
    const std::optional<Bits> number = readNumber(cursor, char(code->value));
    if (!number || !cursor.pass(bytesOf(afterNumber)) || cursor.left() != 0)
        return std::nullopt;
    return toUnsigned(*number, char(code->value));
}

FileResult<quint64> NumberArchive::read(const QString &path)
{
    constexpr quint64 limit = 4096; // bytes; an archive takes some eighty
    const FileResult<QByteArray> archive = files().readFile(path, limit);
    if (!archive)
        return archive.error();
    const std::optional<quint64> number = decode(*archive);
    if (number)
        return *number;
    return FileError{FileError::Operation::Parse, path, 0,
                     QStringLiteral("it is no archive of a number")};
}

QByteArray NumberArchive::encode(quint64 number)
{
    QByteArray archive;
    archive += bytesOf(beforeLittleEndian);
    archive += encodedInteger(systemVersion);
    archive += bytesOf(beforeTypeCode);
    archive += 'Q';
    archive += bytesOf(beforeNumber);
    archive += encodedInteger(number);
    archive += bytesOf(afterNumber);
    return archive;
}
