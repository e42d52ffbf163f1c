#pragma once

#include "window/ListRow.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QStringList>

class Icons;

/// The rows of one of the helper's lists, to be shown and checked. Main thread.
class RowModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role {
        StateRole = Qt::UserRole, ///< int of a ListRow::State
        ProgressRole,             ///< per cent of a conversion; -1 where it is not known
        SearchRole,               ///< ListRows::searchForm() of what is shown
    };

    /// `columns` are the headers, two or three; boxes can be checked where `isCheckable`.
    RowModel(QStringList columns, bool isCheckable, QObject *parent = nullptr);

    /// Has its rows show their icons, which outlive the model.
    void setIcons(Icons *icons);
    /// The names of rows can be edited: the new one goes to nameEdited() and is shown once it comes
    /// back from the helper.
    void setEditable(bool editable) { m_isEditable = editable; }

    /// The rows in their order, each with a key of its own. What was there before stays where it
    /// is for the views, with the box as the new row has it.
    void setRows(const QList<ListRow> &rows);
    const ListRow &at(int row) const { return m_rows[row]; }

    void setChecked(const QList<int> &rows, bool checked);
    int checkedCount() const { return m_checked; }
    /// Identifiers of the checked rows in their order, each once.
    QStringList checkedIdentifiers() const;

    /// Of the movie that is being converted: its text in the row and, where known, the per cent.
    void setProgress(const QString &text, int percent);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// The user has checked or unchecked something.
    void selectionEdited();
    void nameEdited(const ListRow &row, const QString &name);

private:
    void removeAllBut(const QSet<QString> &keys);
    void bringInto(const QList<ListRow> &rows);
    void insertMissing(const QList<ListRow> &rows);
    void adopt(const QList<ListRow> &rows);
    void countChecked();
    void iconIsReady(const QString &name);
    QString text(const ListRow &row, int column) const;
    QString detail(const ListRow &row) const;
    QVariant nameData(const ListRow &row, int role) const;

    const QStringList m_columns;
    const bool m_isCheckable;
    bool m_isEditable = false;
    Icons *m_icons = nullptr;
    QList<ListRow> m_rows;
    int m_checked = 0;
    QString m_progressText;
    int m_progress = -1;
};
