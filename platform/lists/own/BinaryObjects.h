#pragma once

#include <QByteArrayView>

#include <optional>

/// What a binary list's objects are, without what they mean.
///
/// The file is "bplist00", its objects, a table of their positions, and a trailer: six bytes of no
/// matter, the width of a position and of a reference in bytes, then in eight bytes each the number
/// of objects, the root and the table's position. A reference is an index into the table. Numbers
/// are big-endian.
class BinaryObjects
{
public:
    /// Of an object's first byte the upper half; what the lower half says, n, is the kind's.
    enum Kind : unsigned {
        Plain = 0x0,     ///< n tells which value
        Integer = 0x1,   ///< in 2^n bytes: of 8 and 16 signed, else unsigned
        Real = 0x2,      ///< in 2^n bytes
        Date = 0x3,      ///< a real of 8 bytes: seconds since 2001 began in UTC
        Data = 0x4,      ///< n bytes
        Ascii = 0x5,     ///< n characters
        Utf16 = 0x6,     ///< n units
        Uid = 0x8,       ///< an unsigned number in n + 1 bytes
        Array = 0xA,     ///< n references
        Set = 0xC,       ///< the same
        Dictionary = 0xD ///< n references to keys, then n to values
    };

    struct Object
    {
        unsigned kind; ///< a Kind, or one that no list has
        unsigned low;  ///< the n of the first byte
        QByteArrayView contents;
    };

    /// The bytes outlive this.
    explicit BinaryObjects(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    /// Comes first. False where the trailer or the table is damaged.
    bool readTrailer();

    quint64 root() const { return m_root; }

    /// Nothing where there is no such object, or it reaches outside the file.
    std::optional<Object> at(quint64 index) const;

    /// How many references a container's contents are, and one of them.
    qsizetype countIn(QByteArrayView references) const;
    quint64 reference(QByteArrayView references, qsizetype index) const;

    /// The unsigned number in up to 8 bytes.
    static quint64 numberIn(QByteArrayView bytes);

private:
    std::optional<QByteArrayView> part(quint64 position, quint64 count, quint64 width) const;
    std::optional<quint64> followingCount(quint64 &position) const;
    quint64 unitWidth(unsigned kind) const;

    const QByteArrayView m_bytes;
    quint64 m_positionWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_objects = 0;
    quint64 m_root = 0;
    QByteArrayView m_table; // of positions
};
