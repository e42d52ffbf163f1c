#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

/// A file of cards taken apart, step by step: bytes, lines, properties, cards. Pure; any thread.
namespace VCardText {

/// The file's text as bytes of an ASCII-like encoding: UTF-16 with a mark becomes UTF-8, a mark at
/// the beginning goes, and so do NUL characters, at which C strings end. Lines end with "\n" or
/// "\r\n".
QByteArray plain(const QByteArray &file);

/// Puts the lines of a plain text together to properties, one at a time: a file of short lines
/// would take many times its size. Lines that were folded without their blank belong to the
/// property before; those that begin or end a card stand alone.
class Properties
{
public:
    /// `text` must outlive this.
    explicit Properties(QByteArrayView text)
        : m_rest(text)
    {
    }

    /// The next one, which may be empty; nothing behind the last.
    std::optional<QByteArray> next();

private:
    std::optional<QByteArrayView> nextLine();
    bool takeContinuation(QByteArrayView line);

    QByteArrayView m_rest;
    bool m_isOver = false;
    QByteArray m_property; // the one that the next line may continue
};

struct Cards
{
    std::vector<QByteArray> cards; ///< each from BEGIN to END with one property a line, in UTF-8
    bool isCutOff = false;         ///< whether the last one lacked its end
};

/// The cards of a file. A card without an end reaches to the next card; one within another belongs
/// to an agent and is left out.
Cards cardsOf(const QByteArray &file);

} // namespace VCardText
