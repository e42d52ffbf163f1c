#include "window/LogWindow.h"
#include "window/SearchField.h"

#include "frontend/HelperConnection.h"
#include "platform/core/Localized.h"
#include "util/TextFormat.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr qsizetype linesAtOnce = 5000;
constexpr qsizetype widest = 2000; // characters of a line that can be scrolled to

} // namespace

LogWindow::LogWindow(HelperConnection *helper, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_helper(helper)
    , m_search(new SearchField)
    , m_found(new QLabel)
    , m_view(new QTreeView)
    , m_follow(new QCheckBox(localized("Follow")))
{
    setWindowTitle(localized("Log"));
    resize(720, 480);
    makeView();
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(makeTop());
    layout->addWidget(m_view, 1);
    layout->addWidget(makeBottom());
    connect(&m_slices, &QTimer::timeout, this, &LogWindow::takeSlice);
    connect(&helper->frontEnd(), &FrontEndObject::logLine, this, [this](const QString &line) {
        if (m_isReading)
            m_new.append(line);
        else if (isVisible())
            add({line});
    });
    connect(helper, &HelperConnection::stateChanged, this, [this] {
        if (isVisible() && m_helper->isConnected())
            reload();
    });
    auto *const find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_search, qOverload<>(&QWidget::setFocus));
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
}

void LogWindow::makeView()
{
    m_view->setModel(&m_model);
    m_view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setHeaderHidden(true);
    m_view->header()->setStretchLastSection(false);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setAccessibleName(localized("Log"));
    m_view->setAccessibleDescription(localized("The newest line is the last one."));
    auto *const copying = new QAction(localized("Copy"), m_view);
    copying->setShortcut(QKeySequence::Copy);
    copying->setShortcutContext(Qt::WidgetShortcut);
    connect(copying, &QAction::triggered, this, &LogWindow::copy);
    m_view->addAction(copying);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QWidget *LogWindow::makeTop()
{
    auto *const top = new QWidget;
    auto *const layout = new QHBoxLayout(top);
    layout->setContentsMargins({});
    auto *const previous = new QPushButton(localized("Previous"));
    previous->setAccessibleDescription(localized("Goes to the previous line that was found."));
    auto *const next = new QPushButton(localized("Next"));
    next->setAccessibleDescription(localized("Goes to the next line that was found."));
    layout->addWidget(m_search, 1);
    layout->addWidget(m_found);
    layout->addWidget(previous);
    layout->addWidget(next);
    connect(m_search, &QLineEdit::textChanged, this, [this] { search(false, 0); });
    connect(m_search, &QLineEdit::returnPressed, this, [this] { search(false, 1); });
    connect(next, &QPushButton::clicked, this, [this] { search(false, 1); });
    connect(previous, &QPushButton::clicked, this, [this] { search(true, -1); });
    return top;
}

QWidget *LogWindow::makeBottom()
{
    auto *const bottom = new QWidget;
    auto *const layout = new QHBoxLayout(bottom);
    layout->setContentsMargins({});
    m_follow->setChecked(true);
    m_follow->setAccessibleDescription(localized("Keeps the newest line in sight."));
    auto *const copying = new QPushButton(localized("Copy"));
    copying->setAccessibleDescription(localized("The selected lines, or all of them."));
    auto *const clearing = new QPushButton(localized("Clear"));
    clearing->setAccessibleDescription(localized("Empties the log for good."));
    layout->addWidget(m_follow);
    layout->addStretch();
    layout->addWidget(copying);
    layout->addWidget(clearing);
    connect(copying, &QPushButton::clicked, this, &LogWindow::copy);
    connect(clearing, &QPushButton::clicked, this, &LogWindow::clear);
    connect(m_follow, &QCheckBox::toggled, m_view, [this](bool follows) {
        if (follows)
            m_view->scrollToBottom();
    });
    return bottom;
}

void LogWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    reload();
}

// --- Reading

void LogWindow::reload()
{
    if (std::exchange(m_isReading, true))
        return;
    m_new.clear();
    m_helper->ask(Protocol::log, {}, this, [this](const QVariant &answer) {
        // What came before the answer is in it.
        m_new.clear();
        m_model.clear();
        m_unread = answer.toString();
        m_readTo = 0;
        m_slices.start(0ms);
    });
}

void LogWindow::takeSlice()
{
    QStringList lines;
    while (m_readTo < m_unread.size() && lines.size() < linesAtOnce) {
        qsizetype end = m_unread.indexOf(u'\n', m_readTo);
        end = end < 0 ? m_unread.size() : end;
        lines.append(m_unread.sliced(m_readTo, end - m_readTo));
        m_readTo = end + 1;
    }
    if (m_readTo >= m_unread.size()) {
        m_slices.stop();
        m_unread.clear();
        m_isReading = false;
        lines += std::exchange(m_new, {});
    }
    add(lines);
}

void LogWindow::add(const QStringList &lines)
{
    const qsizetype before = m_model.longest();
    m_model.append(lines);
    if (m_model.longest() > before) {
        const qsizetype characters = std::min(m_model.longest(), widest) + 2;
        m_view->header()->resizeSection(0, m_view->fontMetrics().averageCharWidth() *
                                               static_cast<int>(characters));
    }
    if (m_follow->isChecked() && !m_isReading)
        m_view->scrollToBottom();
}

// --- What the user does

void LogWindow::search(bool backwards, int offset)
{
    const QString text = m_search->text();
    const int current = m_view->currentIndex().isValid() ? m_view->currentIndex().row() : -offset;
    const auto found = m_model.find(text, current + offset, backwards);
    const QString count = QLocale().toString(m_model.countOf(text));
    m_found->setText(text.isEmpty() ? QString() : filled(localized("%@ found"), {count}));
    if (!found)
        return;
    m_follow->setChecked(false);
    const QModelIndex index = m_model.index(*found, 0);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void LogWindow::copy() const
{
    QModelIndexList selected = m_view->selectionModel()->selectedRows();
    std::ranges::sort(selected, {}, &QModelIndex::row);
    QString text;
    for (const QModelIndex &index : std::as_const(selected))
        text += m_model.line(index.row()) + u'\n';
    for (int row = 0; row < m_model.rowCount() && selected.isEmpty(); ++row)
        text += m_model.line(row) + u'\n';
    QGuiApplication::clipboard()->setText(text);
}

void LogWindow::clear()
{
    m_helper->ask(Protocol::clearLog, {}, this, [this](const QVariant &) { reload(); });
}
