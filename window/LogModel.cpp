#include "window/LogModel.h"

#include <algorithm>

void LogModel::clear()
{
    beginResetModel();
    m_lines.clear();
    m_longest = 0;
    endResetModel();
}

void LogModel::append(const QStringList &lines)
{
    if (lines.isEmpty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(lines.size()) - 1);
    for (const QString &line : lines) {
        m_lines.append(line.endsWith(u'\n') ? line.chopped(1) : line);
        m_longest = std::max(m_longest, m_lines.last().size());
    }
    endInsertRows();
}

std::optional<int> LogModel::find(const QString &text, int from, bool backwards) const
{
    const int count = rowCount();
    for (int step = 0; step < count && !text.isEmpty(); ++step) {
        const int row = (from + count + (backwards ? -step : step)) % count;
        if (m_lines[row].contains(text, Qt::CaseInsensitive))
            return row;
    }
    return std::nullopt;
}

int LogModel::countOf(const QString &text) const
{
    if (text.isEmpty())
        return 0;
    return static_cast<int>(std::ranges::count_if(m_lines, [&text](const QString &line) {
        return line.contains(text, Qt::CaseInsensitive);
    }));
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return m_lines[index.row()];
}
