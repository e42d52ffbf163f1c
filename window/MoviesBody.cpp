#include "window/MoviesBody.h"

#include "frontend/HelperConnection.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "platform/core/MainThread.h"
#include "platform/files/Trash.h"
#include "util/PathComponents.h"
#include "util/TextFormat.h"
#include "window/ListPane.h"
#include "window/MessageBar.h"
#include "window/RowView.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto progressInterval = 1s;

bool isQueued(const ListRow &row)
{
    return row.state != ListRow::State::Plain;
}

// The thumbnail lies in the folder of the title, in that of the movie.
QString folderOf(const ListRow &row)
{
    return PathComponents::folderOf(PathComponents::folderOf(row.icon));
}

int percentIn(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("\\d+"));
    const QRegularExpressionMatch match = number.match(text);
    return match.hasMatch() ? std::min(match.captured().toInt(), 100) : -1;
}

} // namespace

MoviesBody::MoviesBody(HelperConnection *helper, QWidget *parent)
    : ListBody(helper, QStringLiteral("Movies"), parent)
{
    rows().setEditable(true);
    addBeside(makeButtons());
    m_progress.setInterval(progressInterval);
    connect(&m_progress, &QTimer::timeout, this, &MoviesBody::askProgress);
    connect(&rows(), &RowModel::nameEdited, this, &MoviesBody::rename);
    connect(&helper->frontEnd(), &FrontEndObject::moviesChanged, this, &MoviesBody::reload);
    connect(&pane().view(), &RowView::removalWanted, this, &MoviesBody::removeSelected);
    connect(pane().view().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MoviesBody::updateButtons);
    connect(&keeper(), &ListKeeper::read, this, [this] {
        select(std::exchange(m_toSelect, {}));
        askProgress();
        updateButtons();
    });
}

QWidget *MoviesBody::makeButtons()
{
    auto *const bar = new QWidget;
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    auto *const add = new QPushButton(localized("Add Movies..."));
    add->setAccessibleDescription(localized("Converts files to what the PSP plays."));
    m_rename = new QPushButton(localized("Rename"));
    m_rename->setAccessibleDescription(localized("Edits the name of the selected movie."));
    m_remove = new QPushButton(localized("Remove"));
    m_remove->setAccessibleDescription(
        localized("Moves the selected movies to the Trash, or takes them out of the conversion."));
    for (QPushButton *const button : {add, m_rename, m_remove})
        layout->addWidget(button);
    connect(add, &QPushButton::clicked, this, &MoviesBody::chooseFiles);
    connect(m_remove, &QPushButton::clicked, this, &MoviesBody::removeSelected);
    connect(m_rename, &QPushButton::clicked, this, [this] {
        RowView &view = pane().view();
        view.setFocus();
        view.edit(view.currentIndex().siblingAtColumn(0));
    });
    return bar;
}

void MoviesBody::updateButtons()
{
    const auto count = pane().view().selectionModel()->selectedRows().size();
    m_rename->setEnabled(count == 1);
    m_remove->setEnabled(count > 0);
}

// --- Adding

void MoviesBody::chooseFiles()
{
    auto *const dialog = new QFileDialog(this, localized("Add Movies"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    connect(dialog, &QFileDialog::filesSelected, this, &MoviesBody::addFiles);
    dialog->open();
}

void MoviesBody::addFiles(const QStringList &paths)
{
    helper().ask(
        Protocol::addMoviesFromArray, {paths}, this, [this](const QVariant &) { reload(); },
        [this](const QString &) { say(localized("The movies could not be added.")); });
}

void MoviesBody::askProgress()
{
    bool isWorking = false;
    for (int row = 0; row < rows().rowCount() && !isWorking; ++row)
        isWorking = rows().at(row).state == ListRow::State::Working;
    if (!isWorking) {
        m_progress.stop();
        return;
    }
    m_progress.start();
    helper().ask(Protocol::percentConverted, {}, this, [this](const QVariant &answer) {
        const QString text = Rows::line(answer.toString());
        rows().setProgress(text, percentIn(text));
    });
}

// --- Renaming

void MoviesBody::rename(const ListRow &row, const QString &title)
{
    if (!PathComponents::isName(title)) {
        say(filled(localized("This can't be a movie's name: %@"), {Rows::line(title)}));
        return;
    }
    helper().ask(Protocol::renameMovieItem, {row.given, title}, this,
                 [this](const QVariant &) { reload(); });
}

// --- Removing

void MoviesBody::removeSelected()
{
    QList<ListRow> movies;
    for (const int row : pane().view().selectedRows())
        movies.append(rows().at(row));
    if (!movies.isEmpty())
        remove(movies);
}

void MoviesBody::remove(const QList<ListRow> &movies)
{
    for (qsizetype i = 0; i < movies.size(); ++i) {
        const bool isLast = i == movies.size() - 1;
        helper().ask(Protocol::removeMovieItem, {movies[i].given}, this,
                     [this, isLast](const QVariant &) {
                         if (isLast)
                             reload();
                     });
    }
    const QString text =
        movies.size() > 1
            ? filled(localized("%@ movies have been removed."), {QString::number(movies.size())})
        : isQueued(movies.first())
            ? filled(localized("“%@” has been taken out of the conversion."), {movies.first().name})
            : filled(localized("“%@” has been moved to the Trash."), {movies.first().name});
    messages().sayOnly({.text = text, .action = localized("Undo"), .act = [this, movies] {
                            undo(movies);
                        }});
}

void MoviesBody::undo(const QList<ListRow> &movies)
{
    QStringList sources;
    QStringList folders;
    QStringList selected;
    for (const ListRow &movie : movies) {
        if (isQueued(movie))
            sources.append(movie.identifier);
        else
            folders.append(folderOf(movie));
        if (movie.isChecked && !isQueued(movie))
            selected.append(movie.identifier);
    }
    if (!sources.isEmpty())
        addFiles(sources);
    if (!folders.isEmpty())
        putBack(folders, selected);
}

void MoviesBody::putBack(const QStringList &folders, const QStringList &selected)
{
    const auto report = [self = QPointer(this), selected](bool isDone) {
        if (!self)
            return;
        if (!isDone)
            self->say(localized("Not everything could be put back. Look for it in the "
                                "Trash."));
        self->m_toSelect = selected;
        self->reload();
    };
    const auto work = [folders, report] {
        bool isDone = true;
        for (const QString &folder : folders)
            isDone = Trash::putBack(folder) && isDone;
        performOnMainThread(
            nullptr, [report, isDone] { report(isDone); }, CallMode::DontWait);
    };
    if (!Workers::start(work))
        report(false);
}

void MoviesBody::select(const QStringList &identifiers)
{
    QList<int> found;
    for (int row = 0; row < rows().rowCount() && !identifiers.isEmpty(); ++row) {
        if (identifiers.contains(rows().at(row).identifier))
            found.append(row);
    }
    if (!found.isEmpty())
        rows().setChecked(found, true);
}
