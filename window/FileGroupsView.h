#pragma once

#include <QTreeView>

class FileGroups;

/// Shows files in groups, with the marked and the first ones open. Main thread.
class FileGroupsView : public QTreeView
{
    Q_OBJECT
public:
    /// The model outlives it.
    explicit FileGroupsView(FileGroups &model, QWidget *parent = nullptr);

private:
    /// Those that the row has something for.
    void showColumns(const QModelIndex &group, int row);
    void openGroup(const QModelIndex &group);
};
