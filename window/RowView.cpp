#include "window/RowView.h"

#include "window/RowModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

/// Draws the progress of a conversion behind its text.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const int percent = index.column() == 1 ? index.data(RowModel::ProgressRole).toInt() : -1;
        if (percent < 0) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionProgressBar bar;
        const int spare = option.rect.height() - option.fontMetrics.height() * 3 / 2;
        bar.rect = option.rect.adjusted(2, spare / 2, -2, -spare / 2);
        bar.palette = option.palette;
        bar.fontMetrics = option.fontMetrics;
        bar.direction = option.direction;
        bar.state = option.state | QStyle::State_Horizontal;
        bar.minimum = 0;
        bar.maximum = 100;
        bar.progress = percent;
        bar.text = QLocale().toString(percent) + QLocale().percent();
        bar.textVisible = true;
        bar.textAlignment = Qt::AlignCenter;
        QApplication::style()->drawControl(QStyle::CE_ProgressBar, &bar, painter, option.widget);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideRight;
    }
};

} // namespace

RowView::RowView(QWidget *parent)
    : QTreeView(parent)
{
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setItemDelegate(new RowDelegate(this));
}

void RowView::show(QAbstractItemModel *model)
{
    setModel(model);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 12);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        m_isTouched = m_isTouched || (column > 0 && !m_isFitting && isVisible());
    });
}

void RowView::fitColumns()
{
    if (m_isTouched)
        return;
    m_isFitting = true;
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 1; column < model()->columnCount(); ++column) {
        const int wide = std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
        header()->resizeSection(column, std::clamp(wide + 2 * letter, 16 * letter, 40 * letter));
    }
    m_isFitting = false;
}

QList<int> RowView::selectedRows() const
{
    const auto *const proxy = qobject_cast<QSortFilterProxyModel *>(model());
    QModelIndexList indexes = selectionModel()->selectedRows();
    std::ranges::sort(indexes, {}, &QModelIndex::row);
    QList<int> rows;
    for (const QModelIndex &index : indexes)
        rows.append(proxy->mapToSource(index).row());
    return rows;
}

void RowView::keepTop()
{
    if (!m_top.isValid())
        m_top = indexAt(QPoint(0, 0));
}

void RowView::restoreTop()
{
    const bool isAtStart = verticalScrollBar()->value() == 0 && m_top.row() == 0;
    if (m_top.isValid() && !isAtStart && indexAt(QPoint(0, 0)) != m_top)
        scrollTo(m_top, PositionAtTop);
    m_top = QPersistentModelIndex();
}

void RowView::keyPressEvent(QKeyEvent *event)
{
    const bool isEditing = state() == EditingState;
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && !isEditing &&
        selectionModel()->hasSelection())
        Q_EMIT toggleWanted();
    else if (event->matches(QKeySequence::Delete) && !isEditing)
        Q_EMIT removalWanted();
    else
        QTreeView::keyPressEvent(event);
}
