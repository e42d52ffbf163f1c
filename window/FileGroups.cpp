#include "window/FileGroups.h"

#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/TextFormat.h"

#include <QFont>

#include <algorithm>

struct FileGroups::Rows
{
    Group group;
    std::vector<Row> rows;
    quint64 bytes = 0;
};

namespace {

QVariant sizeAlignment()
{
    return QVariant::fromValue(Qt::AlignTrailing | Qt::AlignVCenter);
}

} // namespace

FileGroups::FileGroups(QObject *parent)
    : QAbstractItemModel(parent)
{
}

FileGroups::~FileGroups() = default;

void FileGroups::clear()
{
    beginResetModel();
    m_groups.clear();
    endResetModel();
}

QModelIndex FileGroups::indexOf(const Rows &rows) const
{
    const auto place = std::ranges::find(m_groups, &rows, &std::unique_ptr<Rows>::get);
    return createIndex(static_cast<int>(place - m_groups.begin()), 0);
}

FileGroups::Rows &FileGroups::rowsOf(const Group &group)
{
    const auto place = std::ranges::lower_bound(m_groups, group.rank, {},
                                                [](const auto &each) { return each->group.rank; });
    if (place != m_groups.end() && (*place)->group.rank == group.rank)
        return **place;
    const int row = static_cast<int>(place - m_groups.begin());
    beginInsertRows({}, row, row);
    Rows &made = **m_groups.insert(place, std::make_unique<Rows>(Rows{group, {}}));
    endInsertRows();
    Q_EMIT groupAdded(indexOf(made));
    return made;
}

void FileGroups::add(const Group &group, const Row &row)
{
    Rows &rows = rowsOf(group);
    const QModelIndex parent = indexOf(rows);
    const int place = static_cast<int>(rows.rows.size());
    beginInsertRows(parent, place, place);
    rows.rows.push_back(row);
    rows.bytes += row.bytes;
    endInsertRows();
    Q_EMIT dataChanged(parent, parent.siblingAtColumn(Note));
}

// A row knows its group by its index's pointer; a group has none.
QModelIndex FileGroups::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? m_groups[static_cast<size_t>(parent.row())].get()
                                        : nullptr);
}

QModelIndex FileGroups::parent(const QModelIndex &child) const
{
    const auto *rows = static_cast<const Rows *>(child.constInternalPointer());
    return rows ? indexOf(*rows) : QModelIndex();
}

int FileGroups::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.constInternalPointer() || parent.column() > 0)
        return 0;
    return static_cast<int>(m_groups[static_cast<size_t>(parent.row())]->rows.size());
}

QVariant FileGroups::data(const QModelIndex &index, int role) const
{
    if (const auto *rows = static_cast<const Rows *>(index.constInternalPointer()))
        return rowData(rows->rows[static_cast<size_t>(index.row())], index.column(), role);
    return groupData(*m_groups[static_cast<size_t>(index.row())], index.column(), role);
}

QVariant FileGroups::groupData(const Rows &rows, int column, int role) const
{
    if (role == Qt::FontRole && rows.group.isMarked) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::TextAlignmentRole && column == Size)
        return sizeAlignment();
    if (role != Qt::DisplayRole)
        return {};
    if (column == File)
        return filled(QStringLiteral("%@ (%@)"),
                      {rows.group.title, QString::number(rows.rows.size())});
    if (column == Size && rows.bytes > 0)
        return FileManagerTools::sizeDescriptionForByteCount(rows.bytes);
    return {};
}

QVariant FileGroups::rowData(const Row &row, int column, int role)
{
    if (role == Qt::TextAlignmentRole && column == Size)
        return sizeAlignment();
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (column) {
    case File:
        // A tool tip would take markup for markup.
        return role == Qt::ToolTipRole ? ::Rows::line(row.path).toHtmlEscaped()
                                       : ::Rows::line(row.path);
    case Size:
        return row.bytes == 0 ? QVariant()
                              : FileManagerTools::sizeDescriptionForByteCount(row.bytes);
    default:
        return role == Qt::ToolTipRole ? row.note.toHtmlEscaped() : row.note;
    }
}

QVariant FileGroups::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case File:
        return localized("File");
    case Size:
        return localized("Size");
    default:
        return localized("Note");
    }
}
