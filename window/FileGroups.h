#pragma once

#include <QAbstractItemModel>

#include <memory>
#include <vector>

/// Files in titled groups, as a plan or a report tells them: columns "File", "Size" and "Note".
/// Main thread.
class FileGroups : public QAbstractItemModel
{
    Q_OBJECT
public:
    enum Column { File, Size, Note, ColumnCount };
    struct Row
    {
        QString path; ///< as it came
        quint64 bytes = 0;
        QString note; ///< for the user
    };

    explicit FileGroups(QObject *parent = nullptr);
    ~FileGroups() override;

    void clear();
    /// Adds to the group of that title; groups stand by rank, lowest first. One of the marked ones
    /// is to be noticed.
    struct Group
    {
        int rank = 0;
        QString title;
        bool isMarked = false;
    };
    void add(const Group &group, const Row &row);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex & = {}) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void groupAdded(const QModelIndex &group);

private:
    struct Rows;
    Rows &rowsOf(const Group &group);
    QModelIndex indexOf(const Rows &rows) const;
    QVariant groupData(const Rows &rows, int column, int role) const;
    static QVariant rowData(const Row &row, int column, int role);

    std::vector<std::unique_ptr<Rows>> m_groups;
};
