#pragma once

#include <QSortFilterProxyModel>

class RowModel;

/// The rows of a model that hold each of the searched words. Main thread.
class RowFilter : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    /// The model outlives it.
    explicit RowFilter(RowModel *rows, QObject *parent = nullptr);

    void search(const QString &text);
    /// Rows of the model that are shown.
    QList<int> shownRows() const;
    /// Checked rows that are not shown.
    int hiddenChecked() const;
    RowModel &rows() const { return *m_rows; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    RowModel *const m_rows;
    QStringList m_words;
};
