#pragma once

#include <QList>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// A row of one of the helper's lists as it is shown. Whatever the helper's row says or lacks, the
/// texts are single lines of bounded length.
struct ListRow
{
    enum class State {
        Plain,
        Waiting, ///< a movie: for its conversion
        Working, ///< it is being converted
        Failed,  ///< its conversion failed
        NotKept, ///< a game save: the stick has what no backup has
    };

    QString identifier; ///< as the helper has it
    QString key;        ///< tells it from the other rows of its list, in the next reading too
    QString name;
    QString detail; ///< the number of entries, a size, or what a game save says of itself
    QString date;   ///< of a game save's newest backup
    QString icon;   ///< for QMIconTransformer
    QString searched;
    int order = 0; ///< rank of its sort
    bool canBeSelected = false;
    bool isChecked = false;
    State state = State::Plain;
    QVariantMap given; ///< the helper's own, to be handed back

    bool operator==(const ListRow &) const = default;
};

namespace ListRows {

/// The key is not yet told apart from others'.
ListRow fromMap(const QVariantMap &given);

/// What a search compares: the letters of the text, without case and accents.
QString searchForm(const QString &text);

/// In the order in which they are shown, each with a key of its own.
void arrange(QList<ListRow> &rows);

} // namespace ListRows
