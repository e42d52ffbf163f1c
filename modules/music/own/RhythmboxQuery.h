#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QXmlStreamReader;

/// What an automatic playlist of Rhythmbox asks for.
class RhythmboxQuery
{
public:
    /// Values by the names of a song's elements; empty where the song has none.
    using Values = std::function<const QString &(const QString &property)>;

    /// Reads the <conjunction> that the reader stands at, to its end.
    void read(QXmlStreamReader &xml);

    /// What can't be answered; empty: nothing.
    const QString &unknownPart() const { return m_unknown; }
    /// The properties that it looks at.
    QStringList properties() const;

    /// `now` in seconds since 1970.
    bool matches(const Values &song, qint64 now) const;

    /// Whether values of the property are texts; others are numbers.
    static bool isText(const QString &property);
    /// Texts as they compare: neither letter case nor accents count.
    static QString folded(const QString &text);

private:
    enum class Operation {
        Equals,
        NotEqual,
        Like,
        NotLike,
        Prefix,
        Suffix,
        AtLeast,
        AtMost,
        Within,
        NotWithin,
        Query,
    };
    struct Criterion
    {
        Operation operation = Operation::Equals;
        QString property;
        QString text; ///< folded
        double number = 0;
        std::vector<RhythmboxQuery> inner = {}; ///< one, of Query
    };

    static std::optional<Operation> operationNamed(QStringView name);
    static bool isMet(const Criterion &criterion, const Values &song, qint64 now);
    void readCriterion(QXmlStreamReader &xml);
    void readSubquery(QXmlStreamReader &xml);

    std::vector<std::vector<Criterion>> m_alternatives{{}}; // one of which must be met whole
    QString m_unknown;
    int m_depth = 0;
};
