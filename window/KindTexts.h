#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantList>

namespace Protocol {
struct List;
}

/// What the window says of the kinds of media.
struct KindTexts
{
    QString saveName;
    QStringView switchKey; ///< the setting by which the kind takes part
    QStringView sourceKey; ///< the setting of its source; empty without one
    QStringList columns;   ///< headers of its list
    QString empty;         ///< why the list of a kind without sources may be empty
    QSize iconSize;        ///< of its rows
    bool isCheckable;      ///< single rows are selected

    /// Of one with a list.
    static KindTexts of(const QString &saveName);
    const Protocol::List &list() const;
};

/// The name of a source, from a row of Protocol::sources, in the user's language.
QString sourceTitle(const QVariantMap &source);

/// Why a list is empty that comes from a source.
struct EmptyList
{
    struct Other
    {
        QString text; ///< that offers it
        int value;    ///< of the source's setting
    };
    QString text;
    QList<Other> others; ///< sources that were found

    /// From the rows of Protocol::sources.
    static EmptyList of(const QString &saveName, const QVariantList &sources);
};
