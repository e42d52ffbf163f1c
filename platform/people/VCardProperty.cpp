#include "platform/people/own/VCardProperty.h"

#include <QByteArrayList>
#include <QString>

#include <algorithm>
#include <glib.h>

namespace {

// Bounds the search for a colon in a property that grows line by line and never has one.
constexpr qsizetype longestHead = 4096;

bool isOfName(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
           c == '.' || c == '_';
}

/// What stands before the value's colon, the first one that no quotes enclose; without one, as much
/// as a head may have at most.
QByteArrayView headOf(QByteArrayView property)
{
    const qsizetype end = std::min(property.size(), longestHead);
    bool isQuoted = false;
    for (qsizetype i = 0; i < end; ++i) {
        if (property[i] == '"')
            isQuoted = !isQuoted;
        else if (property[i] == ':' && !isQuoted)
            return property.first(i);
    }
    return property.first(end);
}

bool tellsQuotedPrintable(QByteArrayView head)
{
    return head.toByteArray().toUpper().contains("QUOTED-PRINTABLE");
}

QByteArray unquoted(QByteArrayView text)
{
    return QByteArray::fromPercentEncoding(text.toByteArray(), '=');
}

QByteArray converted(QByteArrayView text, const QByteArray &charset)
{
    if (text.isEmpty())
        return {};
    gsize written = 0;
    char *const utf8 = g_convert(text.data(), static_cast<gssize>(text.size()), "UTF-8",
                                 charset.constData(), nullptr, &written, nullptr);
    const QByteArray result(utf8, static_cast<qsizetype>(written));
    g_free(utf8);
    return utf8 ? result : QString::fromLatin1(text).toUtf8();
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

/// Takes the parameter out of the head and answers its value.
QByteArray takeCharset(QByteArray &head)
{
    QByteArray charset;
    QByteArray rest;
    for (const QByteArray &part : head.split(';')) {
        if (part.toUpper().startsWith("CHARSET="))
            charset = part.mid(8).replace('"', QByteArray());
        else
            rest += (rest.isEmpty() ? QByteArray() : QByteArrayLiteral(";")) + part;
    }
    head = rest;
    return charset;
}

} // namespace

bool VCardProperty::isBegunBy(QByteArrayView line)
{
    const auto end = std::ranges::find_if_not(line, isOfName) - line.begin();
    return end > 0 && end < line.size() &&
           (line[end] == ':' || (line[end] == ';' && line.contains(':')));
}

bool VCardProperty::isNamed(QByteArrayView property, QByteArrayView name)
{
    const QByteArrayView head = headOf(property);
    const qsizetype end = head.indexOf(';');
    return head.first(end < 0 ? head.size() : end).compare(name, Qt::CaseInsensitive) == 0;
}

bool VCardProperty::isQuotedPrintable(QByteArrayView property)
{
    return tellsQuotedPrintable(headOf(property));
}

bool VCardProperty::isReasonable(QByteArrayView property)
{
    constexpr qsizetype mostParts = 1000;
    return headOf(property).size() < longestHead && std::ranges::count_if(property, [](char c) {
                                                        return c == ';' || c == ',';
                                                    }) <= mostParts;
}

QByteArray VCardProperty::inUtf8(const QByteArray &property)
{
    const QByteArrayView value = QByteArrayView(property).sliced(headOf(property).size());
    QByteArray head = headOf(property).toByteArray();
    QByteArray charset = takeCharset(head);
    const bool isQuoted = tellsQuotedPrintable(head);
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
