#include "window/FileGroupsView.h"

#include "platform/core/Localized.h"
#include "window/FileGroups.h"

#include <QHeaderView>

FileGroupsView::FileGroupsView(FileGroups &model, QWidget *parent)
    : QTreeView(parent)
{
    setModel(&model);
    setAccessibleDescription(localized("In groups, the most important first."));
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideMiddle);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(FileGroups::File, QHeaderView::Stretch);
    header()->setSectionResizeMode(FileGroups::Size, QHeaderView::Interactive);
    header()->setSectionResizeMode(FileGroups::Note, QHeaderView::Interactive);
    const int letter = fontMetrics().averageCharWidth();
    header()->resizeSection(FileGroups::Size, 12 * letter);
    header()->resizeSection(FileGroups::Note, 24 * letter);
    // Few plans have something to note, and few reports tell sizes.
    for (const int column : {FileGroups::Size, FileGroups::Note})
        setColumnHidden(column, true);
    connect(&model, &FileGroups::rowsInserted, this, &FileGroupsView::showColumns);
    connect(&model, &FileGroups::groupAdded, this, &FileGroupsView::openGroup,
            Qt::QueuedConnection);
}

void FileGroupsView::showColumns(const QModelIndex &group, int row)
{
    for (const int column : {FileGroups::Size, FileGroups::Note}) {
        if (group.isValid() && !model()->index(row, column, group).data().toString().isEmpty())
            setColumnHidden(column, false);
    }
}

void FileGroupsView::openGroup(const QModelIndex &group)
{
    constexpr int longestOpen = 200;
    if (model()->rowCount(group) <= longestOpen)
        expand(group);
}
