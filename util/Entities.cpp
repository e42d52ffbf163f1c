#include "util/Entities.h"

#include <QHash>
#include <QStringView>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

// In the order of their characters, from U+00A0 on.
constexpr QStringView latin1Names[] = {
    u"nbsp",   u"iexcl",  u"cent",   u"pound",  u"curren", u"yen",    u"brvbar", u"sect",
    u"uml",    u"copy",   u"ordf",   u"laquo",  u"not",    u"shy",    u"reg",    u"macr",
    u"deg",    u"plusmn", u"sup2",   u"sup3",   u"acute",  u"micro",  u"para",   u"middot",
    u"cedil",  u"sup1",   u"ordm",   u"raquo",  u"frac14", u"frac12", u"frac34", u"iquest",
    u"Agrave", u"Aacute", u"Acirc",  u"Atilde", u"Auml",   u"Aring",  u"AElig",  u"Ccedil",
    u"Egrave", u"Eacute", u"Ecirc",  u"Euml",   u"Igrave", u"Iacute", u"Icirc",  u"Iuml",
    u"ETH",    u"Ntilde", u"Ograve", u"Oacute", u"Ocirc",  u"Otilde", u"Ouml",   u"times",
    u"Oslash", u"Ugrave", u"Uacute", u"Ucirc",  u"Uuml",   u"Yacute", u"THORN",  u"szlig",
    u"agrave", u"aacute", u"acirc",  u"atilde", u"auml",   u"aring",  u"aelig",  u"ccedil",
    u"egrave", u"eacute", u"ecirc",  u"euml",   u"igrave", u"iacute", u"icirc",  u"iuml",
    u"eth",    u"ntilde", u"ograve", u"oacute", u"ocirc",  u"otilde", u"ouml",   u"divide",
    u"oslash", u"ugrave", u"uacute", u"ucirc",  u"uuml",   u"yacute", u"thorn",  u"yuml"};
static_assert(std::size(latin1Names) == 0x100 - 0xA0);

// The numeric names of the table are left out where they stand for the character of their number,
// as any number does.
QHash<QString, QString> makeTable()
{
    QHash<QString, QString> table;
    char16_t character = 0xA0;
    for (const QStringView name : latin1Names)
        table.insert(name.toString(), QChar(character++));
    for (const char *blank : {"nbsp", "#160"})
        table.insert(QString::fromLatin1(blank), QStringLiteral(" "));
    for (const char *hyphen : {"shy", "#173"})
        table.insert(QString::fromLatin1(hyphen), QStringLiteral("-\u00AD"));
    table.insert(QStringLiteral("quot"), QStringLiteral("\""));
    table.insert(QStringLiteral("amp"), QStringLiteral("&"));
    table.insert(QStringLiteral("apos"), QStringLiteral("'"));
    table.insert(QStringLiteral("lt"), QStringLiteral("<"));
    table.insert(QStringLiteral("gt"), QStringLiteral(">"));
    table.insert(QStringLiteral("mdash"), QStringLiteral("\u2014"));
    return table;
}

bool isDigit(QChar c, int base)
{
    return (c >= u'0' && c <= u'9') ||
           (base == 16 && ((c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F')));
}

bool mayStandInDocuments(char32_t character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character <= QChar::LastValidCodePoint && !QChar::isSurrogate(character) &&
           character != 0xFFFE && character != 0xFFFF;
}

std::optional<QString> byNumber(QStringView name)
{
    if (!name.startsWith(u'#'))
        return std::nullopt;
    const bool isHexadecimal = name.mid(1).startsWith(u'x', Qt::CaseInsensitive);
    const int base = isHexadecimal ? 16 : 10;
    const QStringView digits = name.mid(isHexadecimal ? 2 : 1);
    if (!std::all_of(digits.begin(), digits.end(), [base](QChar c) { return isDigit(c, base); }))
        return std::nullopt;
    bool ok = false;
    const char32_t character = digits.toUInt(&ok, base);
    if (!ok || !mayStandInDocuments(character))
        return std::nullopt;
    return QString::fromUcs4(&character, 1);
}

std::optional<QString> replacementFor(QStringView name)
{
    static const QHash<QString, QString> table = makeTable();
    constexpr qsizetype longestName = 32; // zeros in front of a number included
    if (name.size() > longestName)
        return std::nullopt;
    const auto found = table.constFind(name.toString());
    return found == table.constEnd() ? byNumber(name) : std::optional(*found);
}

bool isNameCharacter(QChar c)
{
    return c == u'#' || (c.unicode() < 0x80 && c.isLetterOrNumber());
}

} // namespace

QString StringTools::stringByParsingEntities(const QString &text)
{
    const QStringView all(text);
    QString parsed;
    parsed.reserve(all.size());
    for (qsizetype at = 0; at < all.size();) {
        const qsizetype ampersand = all.indexOf(u'&', at);
        if (ampersand < 0)
            return parsed.append(all.mid(at));
        const auto *const end =
            std::find_if_not(all.begin() + ampersand + 1, all.end(), isNameCharacter);
        const qsizetype nameEnd = end - all.begin();
        const bool isReference = end != all.end() && *end == u';';
        const auto replacement =
            isReference ? replacementFor(all.mid(ampersand + 1).left(nameEnd - ampersand - 1))
                        : std::nullopt;
        parsed += all.mid(at, (replacement ? ampersand : nameEnd) - at);
        parsed += replacement.value_or(QString());
        at = replacement ? nameEnd + 1 : nameEnd;
    }
    return parsed;
}
