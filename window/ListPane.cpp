#include "window/ListPane.h"
#include "window/SearchField.h"

#include "platform/core/Localized.h"
#include "util/TextFormat.h"
#include "window/RowFilter.h"
#include "window/RowModel.h"
#include "window/RowView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString number(int count)
{
    return QLocale().toString(count);
}

} // namespace

ListPane::ListPane(RowFilter *filter, const QString &name, bool isCheckable, QWidget *parent)
    : QWidget(parent)
    , m_filter(filter)
    , m_isCheckable(isCheckable)
    , m_search(new SearchField)
    , m_view(new RowView)
    , m_stack(new QStackedWidget)
    , m_counts(new QLabel)
{
    m_view->show(filter);
    m_view->setAccessibleName(name);
    if (isCheckable)
        m_view->setAccessibleDescription(
            localized("The space bar selects or deselects the chosen rows."));
    m_stack->addWidget(m_view);
    m_stack->addWidget(makeMessage());
    m_counts->setTextFormat(Qt::PlainText);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(makeTop(isCheckable));
    layout->addWidget(m_stack, 1);
    layout->addWidget(m_counts);
    connect(m_view, &RowView::toggleWanted, this, &ListPane::toggleSelected);
    for (const auto signal : {&RowFilter::rowsAboutToBeInserted, &RowFilter::rowsAboutToBeRemoved})
        connect(filter, signal, m_view, &RowView::keepTop);
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &ListPane::updateCounts);
    connect(filter, &RowFilter::dataChanged, &m_counting, [this] { m_counting.start(); });
    showMessage(localized("Loading..."));
}

QWidget *ListPane::makeTop(bool isCheckable)
{
    auto *const top = new QWidget;
    auto *const layout = new QHBoxLayout(top);
    layout->setContentsMargins({});
    m_search->setAccessibleDescription(
        localized("Shows what holds these words. What is out of sight stays as it is."));
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->search(text);
        updateCounts();
    });
    layout->addWidget(m_search, 1);
    if (!isCheckable)
        return top;
    m_all = new QPushButton(localized("Select All"));
    m_all->setAccessibleDescription(localized("Checks all that is shown."));
    m_none = new QPushButton(localized("Select None"));
    m_none->setAccessibleDescription(localized("Unchecks all that is shown."));
    connect(m_all, &QPushButton::clicked, this, [this] { checkShown(true); });
    connect(m_none, &QPushButton::clicked, this, [this] { checkShown(false); });
    layout->addWidget(m_all);
    layout->addWidget(m_none);
    return top;
}

QWidget *ListPane::makeMessage()
{
    auto *const page = new QWidget;
    m_message = new QLabel;
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_buttons = new QVBoxLayout;
    auto *const layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(m_message);
    layout->addLayout(m_buttons);
    layout->addStretch();
    return page;
}

void ListPane::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void ListPane::showList()
{
    m_stack->setCurrentIndex(0);
    m_view->fitColumns();
    m_view->restoreTop();
    updateCounts();
}

void ListPane::showMessage(const QString &text)
{
    showMessage(text, {});
}

void ListPane::showMessage(const QString &text, const QList<QPushButton *> &buttons)
{
    while (QLayoutItem *const item = m_buttons->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    for (QPushButton *const button : buttons)
        m_buttons->addWidget(button, 0, Qt::AlignCenter);
    m_message->setText(text);
    m_stack->setCurrentIndex(1);
    m_counts->hide();
    enableTop(false);
}

void ListPane::updateCounts()
{
    if (m_stack->currentIndex() != 0)
        return;
    const int all = m_filter->rows().rowCount();
    const int shown = m_filter->rowCount();
    const int hidden = m_isCheckable ? m_filter->hiddenChecked() : 0;
    QStringList parts;
    if (m_isCheckable)
        parts.append(filled(localized("%@ of %@ selected"),
                            {number(m_filter->rows().checkedCount()), number(all)}));
    if (shown < all)
        parts.append(filled(localized("%@ of %@ shown"), {number(shown), number(all)}));
    if (hidden > 0)
        parts.append(filled(localized("selected and out of sight: %@"), {number(hidden)}));
    m_counts->setText(parts.join(QStringLiteral(" – ")));
    m_counts->setHidden(parts.isEmpty());
    enableTop(shown > 0);
    m_search->setEnabled(true);
}

void ListPane::enableTop(bool enabled)
{
    m_search->setEnabled(enabled);
    if (m_all)
        m_all->setEnabled(enabled);
    if (m_none)
        m_none->setEnabled(enabled);
}

void ListPane::checkShown(bool checked)
{
    m_filter->rows().setChecked(m_filter->shownRows(), checked);
}

// One that isn't checked has all be checked.
void ListPane::toggleSelected()
{
    const QList<int> rows = m_view->selectedRows();
    RowModel &model = m_filter->rows();
    const bool allChecked = std::ranges::all_of(rows, [&model](int row) {
        return model.at(row).isChecked || !model.at(row).canBeSelected;
    });
    model.setChecked(rows, !allChecked);
}
