#include "window/FileGroupsView.h"

#include "window/FileGroups.h"

#include <QHeaderView>

FileGroupsView::FileGroupsView(FileGroups &model, QWidget *parent)
    : QTreeView(parent)
{
    setModel(&model);
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
    connect(&model, &FileGroups::groupAdded, this, &FileGroupsView::openGroup,
            Qt::QueuedConnection);
}

void FileGroupsView::openGroup(const QModelIndex &group)
{
    constexpr int longestOpen = 200;
    if (model()->rowCount(group) <= longestOpen)
        expand(group);
}
