#include "platform/people/own/VCardAddressBook.h"

#include "platform/core/Log.h"
#include "platform/files/FileManager.h"
#include "platform/people/own/VCardPerson.h"

#include <QByteArrayView>
#include <QCryptographicHash>
#include <QStringConverter>

#include <algorithm>
#include <libebook-contacts/libebook-contacts.h>
#include <memory>
#include <utility>

namespace {

constexpr quint64 maximumFileBytes = 64ULL << 20;

bool equals(QByteArrayView first, QByteArrayView second)
{
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

/// The file's text as bytes of an ASCII-like encoding: UTF-16 becomes UTF-8, a mark at the
/// beginning goes, and so do NUL characters, at which C strings end.
QByteArray withoutMarks(const QByteArray &text)
{
    QByteArray result = text;
    const auto encoding = QStringConverter::encodingForData(text);
    if (encoding && *encoding != QStringConverter::Utf8)
        result = QString(QStringDecoder(*encoding).decode(text)).toUtf8();
    else if (encoding)
        result.remove(0, 3);
    result.removeIf([](char c) { return c == '\0'; });
    if (!result.contains('\n'))
        result.replace('\r', '\n');
    return result;
}

/// Whether a line can be a property's first one: a name, then parameters or the value.
bool beginsProperty(QByteArrayView line)
{
    const auto isOfName = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
               c == '-' || c == '.' || c == '_';
    };
    qsizetype end = 0;
    while (end < line.size() && isOfName(line[end]))
        ++end;
    return end > 0 && end < line.size() &&
           (line[end] == ':' || (line[end] == ';' && line.contains(':')));
}

// Bounds the search for a colon in a property that grows line by line and never has one.
constexpr qsizetype longestHead = 4096;

/// Where the value's colon is: the first one that no quotes enclose; without one, where a head
/// would end at the latest.
qsizetype colonOf(QByteArrayView line)
{
    const qsizetype end = std::min(line.size(), longestHead);
    bool isQuoted = false;
    for (qsizetype i = 0; i < end; ++i) {
        if (line[i] == '"')
            isQuoted = !isQuoted;
        else if (line[i] == ':' && !isQuoted)
            return i;
    }
    return end;
}

bool isQuotedPrintable(QByteArrayView head)
{
    return head.toByteArray().toUpper().contains("QUOTED-PRINTABLE");
}

QByteArray unquoted(QByteArrayView text)
{
    return QByteArray::fromPercentEncoding(text.toByteArray(), '=');
}

QByteArray converted(QByteArrayView text, const QByteArray &charset)
{
    gsize written = 0;
    char *const utf8 = g_convert(text.data(), static_cast<gssize>(text.size()), "UTF-8",
                                 charset.constData(), nullptr, &written, nullptr);
    const QByteArray result(utf8, static_cast<qsizetype>(written));
    g_free(utf8);
    return utf8 ? result : QString::fromLatin1(text).toUtf8();
}

/// Whether libebook can take the property: it appends each of its parameters and values to a list
/// whose end it looks for every time.
bool isReasonable(QByteArrayView property)
{
    constexpr qsizetype mostParts = 1000;
    return colonOf(property) < longestHead &&
           std::count_if(property.begin(), property.end(),
                         [](char c) { return c == ';' || c == ','; }) <= mostParts;
}

bool isKnownCharset(const QByteArray &charset)
{
    if (charset.isEmpty()) // to iconv, the locale's own
        return false;
    GIConv const converter = g_iconv_open("UTF-8", charset.constData());
    if (converter == reinterpret_cast<GIConv>(-1))
        return false;
    g_iconv_close(converter);
    return true;
}

/// The property with texts that libebook reads right. One that isn't in UTF-8 is in what its
/// CHARSET parameter says, else (or where nobody knows that charset) in Latin-1.
QByteArray inUtf8(const QByteArray &property)
{
    const qsizetype colon = colonOf(property);
    const QByteArrayView value = QByteArrayView(property).sliced(colon);
    QByteArray charset;
    QByteArray head;
    for (const QByteArray &part : property.first(colon).split(';')) {
        if (part.toUpper().startsWith("CHARSET="))
            charset = part.mid(8).replace('"', QByteArray());
        else
            head += (head.isEmpty() ? QByteArray() : QByteArrayLiteral(";")) + part;
    }
    const bool isQuoted = isQuotedPrintable(head);
    if (charset.isEmpty() ? (isQuoted ? unquoted(value) : property).isValidUtf8()
                          : isKnownCharset(charset) && property.isValidUtf8())
        return property;
    if (!isKnownCharset(charset))
        charset = QByteArrayLiteral("WINDOWS-1252");
    // Quoted bytes are converted behind the quoting.
    if (isQuoted)
        return head + ";CHARSET=" + charset + value.toByteArray();
    return converted(head, charset) + converted(value, charset);
}

/// Puts a file's lines together to properties, and those to cards.
class CardReader
{
public:
    void addLine(QByteArrayView line)
    {
        const bool isFolded = line.startsWith(' ') || line.startsWith('\t');
        if (isMark(line, "BEGIN") || isMark(line, "END")) {
            endProperty();
            m_property = line.toByteArray();
            endProperty();
        } else if (m_property.endsWith('=') &&
                   isQuotedPrintable(QByteArrayView(m_property).first(colonOf(m_property)))) {
            m_property.chop(1);
            m_property += line;
        } else if (isFolded && !m_property.isEmpty()) {
            m_property += line.sliced(1);
        } else if (!beginsProperty(line) && !m_property.isEmpty()) {
            m_property += line;
        } else {
            endProperty();
            m_property = line.toByteArray();
        }
    }

    /// To be called once, after the last line.
    std::vector<QByteArray> finish(bool *isCutOff)
    {
        endProperty();
        if (isCutOff)
            *isCutOff = m_depth > 0;
        endCard();
        return std::move(m_cards);
    }

private:
    static bool isMark(QByteArrayView line, const char *which)
    {
        return line.size() < 32 && equals(line.trimmed(), QByteArray(which) + ":VCARD");
    }

    void endProperty()
    {
        const QByteArray property = std::exchange(m_property, {});
        if (isMark(property, "BEGIN"))
            begin();
        else if (isMark(property, "END"))
            end();
        else if (m_depth == 1 && isReasonable(property))
            m_card += inUtf8(property) + "\r\n";
        // A card of an agent lies within another one, right behind the property that announces it.
        if (!property.isEmpty())
            m_isAgent = equals(property.first(colonOf(property)).split(';').first(), "AGENT") &&
                        property.endsWith(':');
    }

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
            m_cards.push_back("BEGIN:VCARD\r\n" + m_card + "END:VCARD\r\n");
        m_card.clear();
        m_depth = 0;
    }

    QByteArray m_property; // the one that the next line may continue
    QByteArray m_card;
    int m_depth = 0; // of cards within cards; 0 between them
    bool m_isAgent = false;
    std::vector<QByteArray> m_cards;
};

/// A card without a UID gets one from its contents.
std::optional<Person> personIn(const QByteArray &text)
{
    const std::unique_ptr<EVCard, decltype(&g_object_unref)> card(
        e_vcard_new_from_string(text.constData()), &g_object_unref);
    auto person = personOf(card.get());
    if (person && person->uid.isEmpty())
        person->uid =
            QStringLiteral("card-") +
            QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex());
    return person;
}

void addFile(const QString &path, std::vector<Person> &people)
{
    const auto text = FileManager::defaultManager().readFile(path, maximumFileBytes);
    if (!text) {
        qCWarning(lcPlatform).noquote()
            << "The contacts file can't be read, or is larger than 64 MiB:" << path;
        return;
    }
    bool isCutOff = false;
    const std::vector<QByteArray> cards = cardsOf(*text, &isCutOff);
    if (cards.empty())
        qCWarning(lcPlatform).noquote() << "The contacts file holds no card:" << path;
    else if (isCutOff)
        qCWarning(lcPlatform).noquote() << "The last card of the contacts file is cut off:" << path;
    for (const QByteArray &card : cards) {
        if (auto person = personIn(card))
            people.push_back(std::move(*person));
    }
}

bool isCardFile(const FolderEntry &entry)
{
    return !entry.isFolder && entry.path.endsWith(u".vcf", Qt::CaseInsensitive) &&
           !entry.path.startsWith(u'.') && !entry.path.contains(u"/.");
}

} // namespace

std::vector<QByteArray> cardsOf(const QByteArray &text, bool *isCutOff)
{
    const QByteArray plain = withoutMarks(text);
    CardReader reader;
    for (qsizetype from = 0; from < plain.size();) {
        qsizetype end = plain.indexOf('\n', from);
        if (end < 0)
            end = plain.size();
        QByteArrayView line = QByteArrayView(plain).sliced(from, end - from);
        if (line.endsWith('\r'))
            line.chop(1);
        reader.addLine(line);
        from = end + 1;
    }
    return reader.finish(isCutOff);
}

std::vector<Person> vCardPeople(const QString &folder)
{
    std::vector<Person> people;
    const FileManager &files = FileManager::defaultManager();
    if (!files.exists(folder))
        return people;
    for (const FolderEntry &entry : files.subpaths(folder)) {
        if (isCardFile(entry))
            addFile(folder + u'/' + entry.path, people);
    }
    return people;
}
