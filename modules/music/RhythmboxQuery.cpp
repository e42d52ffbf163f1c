#include "modules/music/own/RhythmboxQuery.h"

#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr int deepest = 8; // queries in queries; the program itself makes two

bool isNumber(const QString &property)
{
    static const QSet<QString> numbers{
        QStringLiteral("track-number"), QStringLiteral("disc-number"),
        QStringLiteral("duration"),     QStringLiteral("file-size"),
        QStringLiteral("bitrate"),      QStringLiteral("rating"),
        QStringLiteral("play-count"),   QStringLiteral("first-seen"),
        QStringLiteral("last-played"),  QStringLiteral("last-seen"),
        QStringLiteral("mtime"),        QStringLiteral("beats-per-minute")};
    return numbers.contains(property);
}

} // namespace

bool RhythmboxQuery::isText(const QString &property)
{
    static const QSet<QString> texts{
        QStringLiteral("title"),    QStringLiteral("artist"),     QStringLiteral("album"),
        QStringLiteral("genre"),    QStringLiteral("composer"),   QStringLiteral("album-artist"),
        QStringLiteral("location"), QStringLiteral("media-type"), QStringLiteral("comment")};
    return texts.contains(property);
}

QString RhythmboxQuery::folded(const QString &text)
{
    QString plain = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    plain.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return plain;
}

std::optional<RhythmboxQuery::Operation> RhythmboxQuery::operationNamed(QStringView name)
{
    static const QHash<QStringView, Operation> operations{
        {u"equals", Operation::Equals},
        {u"not-equal", Operation::NotEqual},
        {u"like", Operation::Like},
        {u"not-like", Operation::NotLike},
        {u"prefix", Operation::Prefix},
        {u"suffix", Operation::Suffix},
        {u"greater", Operation::AtLeast},
        {u"less", Operation::AtMost},
        {u"current-time-within", Operation::Within},
        {u"current-time-not-within", Operation::NotWithin},
    };
    const auto found = operations.constFind(name);
    return found == operations.cend() ? std::nullopt : std::optional(*found);
}

void RhythmboxQuery::read(QXmlStreamReader &xml)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == u"disjunction") {
            m_alternatives.emplace_back();
            xml.skipCurrentElement();
        } else if (xml.name() == u"subquery") {
            readSubquery(xml);
        } else {
            readCriterion(xml);
        }
    }
}

void RhythmboxQuery::readSubquery(QXmlStreamReader &xml)
{
    RhythmboxQuery inner;
    inner.m_depth = m_depth + 1;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"conjunction" && inner.m_depth < deepest) {
            inner.read(xml);
        } else {
            inner.m_unknown = xml.name().toString();
            xml.skipCurrentElement();
        }
    }
    if (m_unknown.isEmpty())
        m_unknown = inner.m_unknown;
    Criterion &criterion = m_alternatives.back().emplace_back();
    criterion.operation = Operation::Query;
    criterion.inner.push_back(std::move(inner));
}

void RhythmboxQuery::readCriterion(QXmlStreamReader &xml)
{
    const QString name = xml.name().toString();
    QString property = xml.attributes().value(QStringLiteral("prop")).toString();
    const QString value = xml.readElementText(QXmlStreamReader::SkipChildElements);
    if (name == u"equals" && property == u"type" && value == u"song")
        return; // as all are
    if (property.endsWith(u"-folded"))
        property.chop(7);
    const auto operation = operationNamed(name);
    if (!operation || (!isText(property) && !isNumber(property))) {
        m_unknown = name + u' ' + property;
        return;
    }
    m_alternatives.back().push_back({.operation = *operation,
                                     .property = property,
                                     .text = folded(value),
                                     .number = value.toDouble()});
}

QStringList RhythmboxQuery::properties() const
{
    QStringList all;
    for (const auto &alternative : m_alternatives) {
        for (const Criterion &criterion : alternative) {
            if (criterion.inner.empty())
                all.append(criterion.property);
            else
                all.append(criterion.inner.front().properties());
        }
    }
    return all;
}

bool RhythmboxQuery::matches(const Values &song, qint64 now) const
{
    return std::ranges::any_of(m_alternatives, [&](const std::vector<Criterion> &alternative) {
        return std::ranges::all_of(
            alternative, [&](const Criterion &criterion) { return isMet(criterion, song, now); });
    });
}

bool RhythmboxQuery::isMet(const Criterion &criterion, const Values &song, qint64 now)
{
    if (criterion.operation == Operation::Query)
        return criterion.inner.front().matches(song, now);
    const QString &stored = song(criterion.property);
    const double number = stored.toDouble();
    const bool isEqual =
        isText(criterion.property) ? folded(stored) == criterion.text : number == criterion.number;
    switch (criterion.operation) {
    case Operation::Equals:
        return isEqual;
    case Operation::NotEqual:
        return !isEqual;
    case Operation::Like:
        return folded(stored).contains(criterion.text);
    case Operation::NotLike:
        return !folded(stored).contains(criterion.text);
    case Operation::Prefix:
        return folded(stored).startsWith(criterion.text);
    case Operation::Suffix:
        return folded(stored).endsWith(criterion.text);
    case Operation::AtLeast:
        return number >= criterion.number;
    case Operation::AtMost:
        return number <= criterion.number;
    case Operation::Within:
        return static_cast<double>(now) - number <= criterion.number;
    case Operation::NotWithin:
        return static_cast<double>(now) - number > criterion.number;
    case Operation::Query:
        break;
    }
    return false;
}
