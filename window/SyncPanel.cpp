#include "window/SyncPanel.h"

#include "frontend/ProgressText.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/TextFormat.h"
#include "window/ActionButton.h"
#include "window/StickWatch.h"
#include "window/Words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include <cmath>

namespace {

QString size(quint64 bytes)
{
    return FileManagerTools::sizeDescriptionForByteCount(bytes);
}

QString paceText(const HelperState &state, std::optional<double> rate)
{
    const QString amount =
        filled(localized("%@ of %@"), {size(state.syncBytes), size(state.syncBytesTotal)});
    if (!rate || *rate < 1)
        return amount;
    const quint64 left = state.syncBytesTotal - std::min(state.syncBytes, state.syncBytesTotal);
    const std::chrono::seconds time(std::llround(static_cast<double>(left) / *rate));
    return filled(localized("%@, %@ a second, %@ left"),
                  {amount, size(static_cast<quint64>(*rate)), ProgressText::duration(time)});
}

} // namespace

SyncPanel::SyncPanel(const StickWatch &watch, const Actions &actions, QWidget *parent)
    : QWidget(parent)
    , m_watch(watch)
    , m_actions(actions)
    , m_status(Words::label())
    , m_subText(Words::label())
    , m_progress(new QProgressBar)
    , m_pace(Words::label())
{
    m_status->setFont(Words::bold(font()));
    m_progress->setAccessibleName(localized("Progress of the sync"));
    auto *words = new QVBoxLayout;
    words->setSpacing(2);
    for (QWidget *each : {static_cast<QWidget *>(m_status), static_cast<QWidget *>(m_subText),
                          static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_pace)})
        words->addWidget(each);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(words, 1);
    for (QAction *action : {actions.preview, actions.eject, actions.cancel, actions.sync})
        row->addWidget(new ActionButton(*action), 0, Qt::AlignBottom);
    connect(&watch, &StickWatch::changed, this, &SyncPanel::refresh);
    refresh();
}

void SyncPanel::refresh()
{
    const HelperState &state = m_watch.state();
    m_status->setText(Rows::line(state.statusText));
    m_subText->setText(Rows::line(state.statusSubText));
    m_actions.sync->setEnabled(m_watch.canSync());
    m_actions.sync->setVisible(!state.syncing);
    m_actions.cancel->setVisible(state.syncing);
    m_actions.cancel->setEnabled(state.canCancel);
    m_actions.preview->setEnabled(state.mounted && !state.syncing);
    m_actions.eject->setEnabled(state.mounted && !state.syncing);
    showProgress();
}

void SyncPanel::showProgress()
{
    const HelperState &state = m_watch.state();
    const auto percent = ProgressText::percent(state);
    m_progress->setVisible(state.syncing);
    m_progress->setMaximum(percent ? 100 : 0);
    m_progress->setValue(percent.value_or(0));
    m_pace->setVisible(state.syncing);
    m_pace->setText(percent ? paceText(state, m_watch.rate()) : QString());
    m_progress->setAccessibleDescription(percent ? m_pace->text() : m_status->text());
}
