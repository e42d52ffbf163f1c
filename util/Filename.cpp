#include "util/Filename.h"

#include <algorithm>
#include <array>

namespace {

constexpr char16_t fatCharacter(char16_t c)
{
    switch (c) {
    case u':':
    case u'/':
    case u'?':
    case u'<':
    case u'>':
    case u'|':
    case u'*':
    case u'\\':
        return u'_';
    case u'"':
        return u'\'';
    default:
        return c;
    }
}

constexpr std::array<char16_t, 128> fatCharacters = [] {
    std::array<char16_t, 128> table{};
    for (char16_t c = 0; c < table.size(); ++c)
        table[c] = fatCharacter(c);
    return table;
}();

bool isAscii(QStringView text)
{
    char16_t all = 0;
    for (const QChar c : text)
        all |= c.unicode();
    return all < fatCharacters.size();
}

/// Decomposition changes nothing in ASCII, so the trimming can come first and the rest is one pass.
QString asciiFilename(QStringView title)
{
    const QStringView trimmed = title.trimmed();
    QString name(trimmed.size(), Qt::Uninitialized);
    std::ranges::transform(trimmed, name.begin(),
                           [](QChar c) { return QChar(fatCharacters[c.unicode()]); });
    if (title.endsWith(u'.'))
        name.back() = u'_';
    return name;
}

} // namespace

QString FileManagerTools::makeFilename(const QString &title)
{
    if (isAscii(title))
        return asciiFilename(title);
    QString name(title.size(), Qt::Uninitialized);
    std::ranges::transform(title, name.begin(),
                           [](QChar c) { return QChar(fatCharacter(c.unicode())); });
    if (name.endsWith(u'.'))
        name.back() = u'_';
    return name.normalized(QString::NormalizationForm_D).trimmed();
}
