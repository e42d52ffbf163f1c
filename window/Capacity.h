#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// How a stick's bytes are shared out once a sync is done.
struct Capacity
{
    struct Part
    {
        QString kind; ///< save name; empty for what is not ours
        quint64 bytes = 0;
    };
    QList<Part> parts; ///< those that take something, what is not ours last
    quint64 total = 0; ///< 0 where there is no stick
    quint64 free = 0;
    quint64 missing = 0; ///< what it would need beyond that; then nothing is free
    bool fits = true;

    /// From Protocol::stick and Protocol::planSummary; without a plan (an empty one) as the stick
    /// is now. Numbers that contradict each other make no part larger than the stick.
    static Capacity of(const QVariantMap &stick, const QVariantMap &plan);

    /// For the user: "Music 1.2 GB, others 300 MB, 2 GB free of 4 GB", or what is too much.
    QString inWords() const;
    /// "Music 1.2 GB", or "Others 300 MB".
    static QString partInWords(const Part &part);
};
