#include "window/ListRow.h"

#include "frontend/Rows.h"

#include <QHash>

#include <algorithm>

namespace {

QString line(const QVariantMap &row, QStringView key)
{
    return Rows::line(Rows::text(row, key));
}

ListRow::State stateOf(const QVariantMap &row)
{
    using State = ListRow::State;
    if (row.value(QStringLiteral("notKept")).toBool())
        return State::NotKept;
    // Only movies say whether they are ready; those that wait don't say whether they convert.
    const QVariant ready = row.value(QStringLiteral("ready"));
    if (!ready.isValid() || ready.toBool())
        return State::Plain;
    const QVariant converting = row.value(QStringLiteral("converting"));
    if (!converting.isValid())
        return State::Waiting;
    return converting.toBool() ? State::Working : State::Failed;
}

} // namespace

ListRow ListRows::fromMap(const QVariantMap &given)
{
    ListRow row;
    row.identifier = Rows::text(given, u"identifier");
    row.canBeSelected = given.contains(QStringLiteral("identifier"));
    row.key = Rows::text(given, u"identifier2");
    if (row.key.isEmpty())
        row.key = row.identifier;
    row.name = line(given, u"name");
    if (row.name.isEmpty())
        row.name = Rows::line(row.identifier);
    row.detail = line(given, u"size");
    if (row.detail.isEmpty())
        row.detail = line(given, u"description");
    row.date = line(given, u"date");
    row.icon = Rows::text(given, u"icon");
    row.searched = searchForm(row.name + u'\n' + row.detail);
    row.order = given.value(QStringLiteral("order")).toInt();
    row.isChecked = row.canBeSelected && given.value(QStringLiteral("enabled")).toBool();
    row.state = stateOf(given);
    row.given = given;
    return row;
}

QString ListRows::searchForm(const QString &text)
{
    const auto isMark = [](QChar c) {
        return c.category() == QChar::Mark_NonSpacing;
    };
    return text.normalized(QString::NormalizationForm_KD).removeIf(isMark).toCaseFolded();
}

void ListRows::arrange(QList<ListRow> &rows)
{
    std::ranges::stable_sort(rows, {}, &ListRow::order);
    QHash<QString, int> seen;
    for (ListRow &row : rows) {
        if (const int before = seen[row.key]++; before > 0)
            row.key += u'\n' + QString::number(before);
    }
}
