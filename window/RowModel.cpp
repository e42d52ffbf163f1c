#include "window/RowModel.h"

#include "platform/core/Localized.h"
#include "window/Icons.h"

#include <QHash>

#include <algorithm>

namespace {

QSet<QString> keysOf(const QList<ListRow> &rows)
{
    QSet<QString> keys;
    keys.reserve(rows.size());
    for (const ListRow &row : rows)
        keys.insert(row.key);
    return keys;
}

// A name may look like markup, which a tool tip would take it for.
QString asToolTip(const QString &text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace

RowModel::RowModel(QStringList columns, bool isCheckable, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
    , m_isCheckable(isCheckable)
{
}

void RowModel::setIcons(Icons *icons)
{
    m_icons = icons;
    connect(icons, &Icons::ready, this, &RowModel::iconIsReady);
}

// --- Rows read anew

void RowModel::setRows(const QList<ListRow> &rows)
{
    removeAllBut(keysOf(rows));
    bringInto(rows);
    insertMissing(rows);
    adopt(rows);
    countChecked();
}

void RowModel::removeAllBut(const QSet<QString> &keys)
{
    const auto stays = [&keys](const ListRow &row) {
        return keys.contains(row.key);
    };
    if (std::ranges::none_of(m_rows, stays) && !m_rows.isEmpty()) {
        beginRemoveRows({}, 0, static_cast<int>(m_rows.size()) - 1);
        m_rows.clear();
        endRemoveRows();
    }
    for (int last = static_cast<int>(m_rows.size()) - 1; last >= 0; --last) {
        if (stays(m_rows[last]))
            continue;
        int first = last;
        while (first > 0 && !stays(m_rows[first - 1]))
            --first;
        beginRemoveRows({}, first, last);
        m_rows.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

// Those that stay, in their new order.
void RowModel::bringInto(const QList<ListRow> &rows)
{
    QHash<QString, int> places;
    places.reserve(rows.size());
    for (const ListRow &row : rows)
        places.insert(row.key, static_cast<int>(places.size()));
    const auto placeOf = [&places](const ListRow &row) {
        return places.value(row.key);
    };
    if (std::ranges::is_sorted(m_rows, {}, placeOf))
        return;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QStringList keys;
    for (const QModelIndex &index : before)
        keys.append(m_rows[index.row()].key);
    std::ranges::sort(m_rows, {}, placeOf);
    QHash<QString, int> now;
    for (const ListRow &row : m_rows)
        now.insert(row.key, static_cast<int>(now.size()));
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(now.value(keys[i]), before[i].column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void RowModel::insertMissing(const QList<ListRow> &rows)
{
    for (qsizetype first = 0; first < rows.size(); ++first) {
        if (first < m_rows.size() && m_rows[first].key == rows[first].key)
            continue;
        qsizetype end = first + 1;
        const QString next = first < m_rows.size() ? m_rows[first].key : QString();
        while (end < rows.size() && (first >= m_rows.size() || rows[end].key != next))
            ++end;
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
        m_rows = m_rows.first(first) + rows.sliced(first, end - first) + m_rows.sliced(first);
        endInsertRows();
        first = end - 1;
    }
}

// The rows stand as they should; what they say may be old.
void RowModel::adopt(const QList<ListRow> &rows)
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row] == rows[row])
            continue;
        m_rows[row] = rows[row];
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

void RowModel::countChecked()
{
    m_checked = static_cast<int>(std::ranges::count(m_rows, true, &ListRow::isChecked));
}

// --- Boxes

void RowModel::setChecked(const QList<int> &rows, bool checked)
{
    // Rows of one identifier are selected together: the helper can't tell them apart.
    QSet<QString> identifiers;
    for (const int row : rows) {
        if (m_rows[row].canBeSelected)
            identifiers.insert(m_rows[row].identifier);
    }
    const auto changes = [&](const ListRow &row) {
        return row.isChecked != checked && row.canBeSelected &&
               identifiers.contains(row.identifier);
    };
    if (std::ranges::none_of(m_rows, changes))
        return;
    for (ListRow &row : m_rows) {
        if (changes(row))
            row.isChecked = checked;
    }
    countChecked();
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT selectionEdited();
}

QStringList RowModel::checkedIdentifiers() const
{
    QStringList identifiers;
    QSet<QString> taken;
    for (const ListRow &row : m_rows) {
        if (row.isChecked && !taken.contains(row.identifier)) {
            taken.insert(row.identifier);
            identifiers.append(row.identifier);
        }
    }
    return identifiers;
}

// --- What is shown

void RowModel::setProgress(const QString &text, int percent)
{
    if (text == m_progressText && percent == m_progress)
        return;
    m_progressText = text;
    m_progress = percent;
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row].state == ListRow::State::Working)
            Q_EMIT dataChanged(index(row, 1), index(row, 1));
    }
}

void RowModel::iconIsReady(const QString &name)
{
    const auto first = std::ranges::find(m_rows, name, &ListRow::icon);
    if (first == m_rows.end())
        return;
    const bool isOne = name.contains(u'/'); // other icons are shared
    const int row = static_cast<int>(first - m_rows.begin());
    Q_EMIT dataChanged(index(row, 0), index(isOne ? row : rowCount() - 1, 0), {Qt::DecorationRole});
}

int RowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RowModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_columns.value(section);
}

QString RowModel::detail(const ListRow &row) const
{
    switch (row.state) {
    case ListRow::State::Waiting:
        return localized("Waits for its conversion");
    case ListRow::State::Working:
        return m_progressText;
    case ListRow::State::Failed:
        return localized("The conversion failed");
    case ListRow::State::NotKept:
    case ListRow::State::Plain:
        break;
    }
    return row.detail;
}

QString RowModel::text(const ListRow &row, int column) const
{
    if (column == 0)
        return row.name;
    if (column == 1)
        return detail(row);
    if (row.state != ListRow::State::NotKept)
        return row.date;
    return row.date.isEmpty() ? localized("On the PSP, not kept yet")
                              : localized("Newer on the PSP than what is kept");
}

QVariant RowModel::nameData(const ListRow &row, int role) const
{
    switch (role) {
    case Qt::EditRole:
        return row.name;
    case Qt::DecorationRole:
        return m_icons ? m_icons->icon(row.icon) : QVariant();
    case Qt::CheckStateRole:
        if (!m_isCheckable || !row.canBeSelected)
            return {};
        return row.isChecked ? Qt::Checked : Qt::Unchecked;
    default:
        return {};
    }
}

QVariant RowModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ListRow &row = m_rows[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return asToolTip(text(row, index.column()));
    case StateRole:
        return static_cast<int>(row.state);
    case ProgressRole:
        return row.state == ListRow::State::Working ? m_progress : -1;
    case SearchRole:
        return row.searched;
    default:
        return index.column() == 0 ? nameData(row, role) : QVariant();
    }
}

bool RowModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != 0)
        return false;
    if (role == Qt::CheckStateRole) {
        setChecked({index.row()}, value.toInt() == Qt::Checked);
        return true;
    }
    const ListRow &row = m_rows[index.row()];
    const QString name = value.toString().trimmed();
    if (role == Qt::EditRole && !name.isEmpty() && name != row.name)
        Q_EMIT nameEdited(row, name);
    return false;
}

Qt::ItemFlags RowModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() != 0)
        return flags;
    flags.setFlag(Qt::ItemIsUserCheckable, m_isCheckable && m_rows[index.row()].canBeSelected);
    flags.setFlag(Qt::ItemIsEditable, m_isEditable);
    return flags;
}
