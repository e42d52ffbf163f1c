#include "window/RowFilter.h"

#include "window/RowModel.h"

#include <algorithm>

RowFilter::RowFilter(RowModel *rows, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_rows(rows)
{
    setSourceModel(rows);
}

void RowFilter::search(const QString &text)
{
    m_words = ListRows::searchForm(text).simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

QList<int> RowFilter::shownRows() const
{
    QList<int> rows;
    rows.reserve(rowCount());
    for (int row = 0; row < rowCount(); ++row)
        rows.append(mapToSource(index(row, 0)).row());
    return rows;
}

int RowFilter::hiddenChecked() const
{
    const QList<int> shown = shownRows();
    const auto isChecked = [this](int row) {
        return m_rows->at(row).isChecked;
    };
    return m_rows->checkedCount() - static_cast<int>(std::ranges::count_if(shown, isChecked));
}

bool RowFilter::filterAcceptsRow(int row, const QModelIndex & /*parent*/) const
{
    const QString &text = m_rows->at(row).searched;
    return std::ranges::all_of(m_words,
                               [&text](const QString &word) { return text.contains(word); });
}
