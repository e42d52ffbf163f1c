#include "window/MainWindow.h"

#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Rows.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/core/Localized.h"
#include "window/CapacityBar.h"
#include "window/FirstStartDialog.h"
#include "window/KindPage.h"
#include "window/Kinds.h"
#include "window/LogWindow.h"
#include "window/PlanTexts.h"
#include "window/Planner.h"
#include "window/PreviewDialog.h"
#include "window/ReportDialog.h"
#include "window/SettingsDialog.h"
#include "window/StickHeader.h"
#include "window/StickWatch.h"
#include "window/SyncPanel.h"
#include "window/WindowMenus.h"
#include "window/WindowPlace.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QListWidget>
#include <QMimeData>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int pictureSide = 32;

QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

MainWindow::MainWindow(HelperConnection *helper)
    : m_helper(helper)
    , m_watch(new StickWatch(*helper, this))
    , m_planner(new Planner(*helper, *m_watch, this))
    , m_messages(new MessageBar)
    , m_kinds(new QListWidget)
    , m_pages(new QStackedWidget)
    , m_capacity(new CapacityBar)
{
    setWindowTitle(QStringLiteral("Caravel"));
    setAccessibleName(windowTitle());
    setAcceptDrops(true);
    const WindowMenus::Actions actions = WindowMenus::make(*this);
    auto *whole = new QWidget;
    auto *column = new QVBoxLayout(whole);
    column->addWidget(new StickHeader(*helper, *m_watch));
    column->addWidget(m_messages);
    column->addWidget(makeMiddle(), 1);
    column->addWidget(m_capacity);
    column->addWidget(
        new SyncPanel(*m_watch, {actions.preview, actions.sync, actions.cancel, actions.eject}));
    setCentralWidget(whole);
    connectActions(actions);
    followHelper();
    m_kinds->setCurrentRow(0);
    m_kinds->setFocus();
    WindowPlace::restore(*this);
}

QWidget *MainWindow::makeMiddle()
{
    m_kinds->setIconSize({pictureSide, pictureSide});
    m_kinds->setAccessibleName(localized("Kinds of media"));
    m_kinds->setAccessibleDescription(
        localized("What there is of each kind, and how much of it is selected."));
    m_kinds->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_kinds->setFixedWidth(pictureSide + 26 * fontMetrics().averageCharWidth());
    m_kinds->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_kinds->setSpacing(2);
    connect(m_kinds, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    for (const Kind &kind : allKinds())
        addPage(kind);
    auto *middle = new QWidget;
    auto *row = new QHBoxLayout(middle);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_kinds);
    row->addWidget(m_pages, 1);
    return middle;
}

void MainWindow::addPage(const Kind &kind)
{
    auto *page = new KindPage(m_helper, kind.saveName.toString());
    auto *item = new QListWidgetItem(kind.picture(), kind.title(), m_kinds);
    m_pages->addWidget(page);
    connect(page, &KindPage::selectionChanged, this, [this, page, item, title = kind.title()] {
        const QString summary = page->summary();
        item->setText(summary.isEmpty() ? title : title + u'\n' + summary);
        m_planner->planSoon();
    });
}

void MainWindow::connectActions(const WindowMenus::Actions &actions)
{
    const auto on = [this](QAction *action, auto act) {
        connect(action, &QAction::triggered, this, act);
    };
    on(actions.sync, &MainWindow::startSync);
    on(actions.cancel, [] {
        DistributedNotificationCenter::defaultCenter().post(
            QStringLiteral("CVCancelSyncNotification"));
    });
    on(actions.preview, &MainWindow::showPreview);
    on(actions.eject, &MainWindow::eject);
    on(actions.report, &MainWindow::showReport);
    on(actions.quit, &MainWindow::close);
    on(actions.reload, &MainWindow::reload);
    on(actions.find, &MainWindow::find);
    on(actions.settings, &MainWindow::showSettings);
    on(actions.log, &MainWindow::showLog);
    on(actions.firstStart, &MainWindow::showFirstStart);
}

void MainWindow::followHelper()
{
    const FrontEndObject &frontEnd = m_helper->frontEnd();
    connect(m_helper, &HelperConnection::stateChanged, this, &MainWindow::helperChanged);
    connect(&frontEnd, &FrontEndObject::alert, this, &MainWindow::showAlert);
    connect(m_watch, &StickWatch::syncFinished, this, &MainWindow::syncDidFinish);
    connect(m_watch, &StickWatch::stickChanged, this, &MainWindow::stickChanged);
    const auto showCapacity = [this] {
        m_capacity->setCapacity(Capacity::of(m_watch->stick(), m_planner->latest()));
    };
    connect(m_watch, &StickWatch::changed, this, showCapacity);
    connect(m_planner, &Planner::changed, this, [this, showCapacity] {
        showCapacity();
        if (m_looksFirst && !m_planner->isPlanning())
            syncOrPreview();
    });
}

void MainWindow::helperChanged()
{
    if (!m_helper->isConnected())
        return;
    reload();
    if (std::exchange(m_firstStart, false) && FirstStartDialog::isNeeded())
        showFirstStart();
}

void MainWindow::reload()
{
    for (int i = 0; i < m_pages->count(); ++i)
        static_cast<KindPage *>(m_pages->widget(i))->reload();
    m_planner->planSoon();
}

// --- The stick

// The first sync of a stick with files of its own is looked at first. Whether it is the first is
// asked now: what was read while the stick came may be of the moment before.
void MainWindow::startSync()
{
    m_helper->ask(Protocol::isFirstSync, {}, this, [this](const QVariant &isFirst) {
        if (isFirst.isValid() && !isFirst.toBool()) {
            m_helper->tell(Protocol::syncNow, {QVariantMap()});
            return;
        }
        m_planner->planNow();
        m_looksFirst = m_planner->isPlanning(); // not beside a sync that another has begun
    });
}

// Without a plan nobody knows what the sync would remove.
void MainWindow::syncOrPreview()
{
    m_looksFirst = false;
    const QVariantMap &plan = m_planner->summary();
    if (!plan.isEmpty() && PlanTexts::strangers(plan).isEmpty())
        m_helper->tell(Protocol::syncNow, {QVariantMap()});
    else
        openPreview();
}

void MainWindow::showPreview()
{
    m_planner->planNow();
    openPreview();
}

void MainWindow::openPreview()
{
    if (!m_preview) {
        m_preview = new PreviewDialog(*m_planner, *m_watch, this);
        m_preview->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_preview, &PreviewDialog::syncWanted, this,
                [this] { m_helper->tell(Protocol::syncNow, {QVariantMap()}); });
    }
    m_preview->open();
}

void MainWindow::eject()
{
    m_ejects = true;
    m_helper->tell(Protocol::ejectPSP, {QVariantMap()});
}

void MainWindow::stickChanged()
{
    m_looksFirst = false;
    if (std::exchange(m_ejects, false) && !m_watch->state().mounted)
        m_messages->say(
            {localized("The Memory Stick was ejected"),
             localized("Everything is written to it. You can disconnect the PSP now.")});
    static_cast<KindPage *>(m_pages->widget(m_pages->count() - 1))->reload();
}

void MainWindow::syncDidFinish()
{
    m_helper->ask(Protocol::lastRunSummary, {}, this, [this](const QVariant &value) {
        const QVariantMap summary = value.toMap();
        MessageBar::Message message{PlanTexts::outcome(summary), {}};
        if (!PlanTexts::isComplete(summary))
            message.style = MessageBar::Style::Warning;
        message.action = localized("Show Report...");
        message.act = [this] {
            showReport();
        };
        m_messages->say(message);
    });
    static_cast<KindPage *>(m_pages->widget(m_pages->count() - 1))->reload();
}

// What asks for a decision stands in the way; the rest stands above the pages.
void MainWindow::showAlert(const QString &title, const QString &text, int style)
{
    MessageBar::Message message{title, text};
    if (style == 0)
        message.style = MessageBar::Style::Warning;
    else if (style == 2)
        message.style = MessageBar::Style::Critical;
    if (HelperProcess::isText(title, "The sync was not started!")) {
        message.action = localized("Preview...");
        message.act = [this] {
            showPreview();
        };
    }
    m_messages->say(message);
}

// --- Other windows

void MainWindow::showFirstStart()
{
    auto *dialog = new FirstStartDialog(*m_helper, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, &MainWindow::reload);
    dialog->open();
}

void MainWindow::showReport()
{
    auto *dialog = new ReportDialog(*m_helper, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showSettings()
{
    auto *dialog = new SettingsDialog(m_helper, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &MainWindow::reload);
    dialog->open();
}

void MainWindow::showLog()
{
    if (!m_log) {
        m_log = new LogWindow(m_helper, this);
        m_log->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_log->show();
    m_log->activateWindow();
}

void MainWindow::find()
{
    static_cast<KindPage *>(m_pages->currentWidget())->focusSearch();
}

void MainWindow::raiseWindow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

// A sync goes on without the window: the helper is a process of its own.
void MainWindow::closeEvent(QCloseEvent *event)
{
    WindowPlace::store(*this);
    QMainWindow::closeEvent(event);
    QApplication::quit();
}

// --- Movies that are dropped

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    m_kinds->setCurrentRow(static_cast<int>(kindOf(u"Movies") - allKinds().data()));
    static_cast<KindPage *>(m_pages->currentWidget())->addFiles(localFiles(*event->mimeData()));
    event->acceptProposedAction();
}
