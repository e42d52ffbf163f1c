#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <optional>

/// The lines of a log. Main thread.
class LogModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    void clear();
    /// Lines with or without their line feeds.
    void append(const QStringList &lines);
    const QString &line(int row) const { return m_lines[row]; }
    /// Characters of the longest line.
    qsizetype longest() const { return m_longest; }

    /// The next line that holds the text in any case, from that row on (which counts too) and
    /// around the end; backwards where asked to.
    std::optional<int> find(const QString &text, int from, bool backwards) const;
    int countOf(const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QStringList m_lines;
    qsizetype m_longest = 0;
};
