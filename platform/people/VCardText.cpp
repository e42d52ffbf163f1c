#include "platform/people/own/VCardText.h"

#include "platform/people/own/VCardProperty.h"

#include <QString>
#include <QStringConverter>

#include <utility>

namespace {

bool isMark(QByteArrayView line, QByteArrayView mark)
{
    return line.size() < 32 && line.trimmed().compare(mark, Qt::CaseInsensitive) == 0;
}

bool isBegin(QByteArrayView line)
{
    return isMark(line, "BEGIN:VCARD");
}

bool isEnd(QByteArrayView line)
{
    return isMark(line, "END:VCARD");
}

/// Puts properties together to cards.
class CardReader
{
public:
    void add(const QByteArray &property)
    {
        if (isBegin(property))
            begin();
        else if (isEnd(property))
            end();
        else if (m_depth == 1 && VCardProperty::isReasonable(property))
            m_card += VCardProperty::inUtf8(property) + "\r\n";
        // A card of an agent lies within another one, right behind the property that announces it.
        if (!property.isEmpty())
            m_isAgent = property.endsWith(':') && VCardProperty::isNamed(property, "AGENT");
    }

    /// To be called once, after the last property.
    VCardText::Cards finish()
    {
        m_found.isCutOff = m_depth > 0;
        endCard();
        return std::move(m_found);
    }

private:
    void begin()
    {
        if (m_depth > 0 && m_isAgent) {
            ++m_depth;
            return;
        }
        endCard();
        m_depth = 1;
    }

    void end()
    {
        if (m_depth > 1)
            --m_depth;
        else
            endCard();
    }

    void endCard()
    {
        if (m_depth > 0)
            m_found.cards.push_back("BEGIN:VCARD\r\n" + m_card + "END:VCARD\r\n");
        m_card.clear();
        m_depth = 0;
    }

    QByteArray m_card;
    int m_depth = 0; // of cards within cards; 0 between them
    bool m_isAgent = false;
    VCardText::Cards m_found;
};

} // namespace

namespace VCardText {

QByteArray plain(const QByteArray &file)
{
    QByteArray result = file;
    const auto encoding = QStringConverter::encodingForData(file);
    if (encoding && *encoding != QStringConverter::Utf8)
        result = QString(QStringDecoder(*encoding).decode(file)).toUtf8();
    else if (encoding)
        result.remove(0, 3);
    result.removeIf([](char c) { return c == '\0'; });
    if (!result.contains('\n'))
        result.replace('\r', '\n');
    return result;
}

std::optional<QByteArray> Properties::next()
{
    if (isBegin(m_property) || isEnd(m_property))
        return std::exchange(m_property, {});
    while (const auto line = nextLine()) {
        if (!takeContinuation(*line))
            return std::exchange(m_property, line->toByteArray());
    }
    if (std::exchange(m_isOver, true))
        return std::nullopt;
    return std::exchange(m_property, {});
}

std::optional<QByteArrayView> Properties::nextLine()
{
    if (m_rest.isEmpty())
        return std::nullopt;
    const qsizetype end = m_rest.indexOf('\n');
    QByteArrayView line = end < 0 ? m_rest : m_rest.first(end);
    m_rest = end < 0 ? QByteArrayView() : m_rest.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

/// False where the line is a property's first one.
bool Properties::takeContinuation(QByteArrayView line)
{
    if (m_property.isEmpty() || isBegin(line) || isEnd(line))
        return false;
    const bool isFolded = line.startsWith(' ') || line.startsWith('\t');
    if (m_property.endsWith('=') && VCardProperty::isQuotedPrintable(m_property)) {
        m_property.chop(1);
        m_property += line;
    } else if (isFolded) {
        m_property += line.sliced(1);
    } else if (!VCardProperty::isBegunBy(line)) {
        m_property += line;
    } else {
        return false;
    }
    return true;
}

Cards cardsOf(const QByteArray &file)
{
    const QByteArray text = plain(file);
    Properties properties(text);
    CardReader reader;
    while (const auto property = properties.next())
        reader.add(*property);
    return reader.finish();
}

} // namespace VCardText
