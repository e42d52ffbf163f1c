#include "util/StringTools.h"

#include <QDir>
#include <QStringBuilder>

namespace {

/// One step of a pattern.
struct Token
{
    enum class Kind { Run, Any, Literal };
    Kind kind;
    QChar literal;
    qsizetype end; // where the next token begins
};

Token tokenAt(QStringView pattern, qsizetype at)
{
    const QChar c = pattern[at];
    if (c == u'*')
        return {Token::Kind::Run, c, at + 1};
    if (c == u'?')
        return {Token::Kind::Any, c, at + 1};
    if (c == u'\\' && at + 1 < pattern.size())
        return {Token::Kind::Literal, pattern[at + 1], at + 2};
    return {Token::Kind::Literal, c, at + 1};
}

} // namespace

// Greedy matching: after a mismatch only the last "*" needs to take one character more.
bool StringTools::isLike(QStringView text, QStringView pattern)
{
    qsizetype behindStar = -1; // pattern position behind the last "*" met
    qsizetype taken = 0;       // first text position behind what that "*" takes
    qsizetype p = 0;
    for (qsizetype t = 0; t < text.size();) {
        const bool more = p < pattern.size();
        const Token token = more ? tokenAt(pattern, p) : Token{Token::Kind::Run, {}, p};
        if (more && token.kind == Token::Kind::Run) {
            behindStar = p = token.end;
            taken = t;
        } else if (more && (token.kind == Token::Kind::Any || token.literal == text[t])) {
            p = token.end;
            ++t;
        } else if (behindStar >= 0) {
            p = behindStar;
            t = ++taken;
        } else {
            return false;
        }
    }
    return pattern.mid(p).count(u'*') == pattern.size() - p;
}

QString StringTools::expandingTilde(const QString &path)
{
    if (path != u"~" && !path.startsWith(u"~/"))
        return path;
    return QString::fromUtf8(qgetenv("HOME")) + path.mid(1);
}

QString StringTools::appendingPathComponent(const QString &folder, const QString &component)
{
    if (folder.isEmpty() || component.isEmpty())
        return folder + component;
    QStringView front(folder);
    while (front.endsWith(u'/'))
        front.chop(1);
    QStringView back(component);
    while (back.startsWith(u'/'))
        back = back.mid(1);
    return front % u'/' % back;
}

QString StringTools::standardizingPath(const QString &path)
{
    const QString absolute = path.startsWith(u'/') ? path : QDir::currentPath() + u'/' + path;
    QList<QStringView> steps;
    for (const QStringView step : QStringView(absolute).split(u'/', Qt::SkipEmptyParts)) {
        if (step != u".." && step != u".")
            steps.append(step);
        else if (step == u".." && !steps.isEmpty())
            steps.removeLast();
    }
    QString standard;
    for (const QStringView step : steps)
        standard.append(u'/').append(step);
    return standard.isEmpty() ? QStringLiteral("/") : standard;
}
