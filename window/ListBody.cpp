#include "window/ListBody.h"

#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "util/TextFormat.h"
#include "window/ListPane.h"
#include "window/MessageBar.h"
#include "window/RowView.h"
#include "window/SettingEditor.h"

#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

using namespace std::chrono_literals;

ListBody::ListBody(HelperConnection *helper, const QString &saveName, QWidget *parent)
    : PageBody(parent)
    , m_helper(helper)
    , m_texts(KindTexts::of(saveName))
    , m_icons(HelperProcess::bundle().resourcePath(), m_texts.iconSize)
    , m_rows(m_texts.columns, m_texts.isCheckable)
    , m_filter(&m_rows)
    , m_keeper(HelperCalls::of(helper), m_texts.list(), &m_rows)
    , m_pane(new ListPane(&m_filter, m_texts.columns.first(), m_texts.isCheckable))
    , m_messages(new MessageBar)
    , m_switch(new SettingEditor(m_texts.switchKey, SettingEditor::Form::Short))
    , m_top(new QHBoxLayout)
    , m_layout(new QVBoxLayout(this))
{
    m_icons.setDevicePixelRatio(devicePixelRatioF());
    m_rows.setIcons(&m_icons);
    m_pane->view().setIconSize(m_texts.iconSize);
    m_top->addWidget(m_switch, 1);
    m_layout->setContentsMargins({});
    m_layout->addLayout(m_top);
    m_layout->addWidget(m_pane, 1);
    m_layout->addWidget(m_messages);
    connect(&m_rows, &RowModel::selectionEdited, this, &PageBody::changed);
    connect(m_switch, &SettingEditor::written, this, &PageBody::changed);
    connect(&m_keeper, &ListKeeper::read, this, &ListBody::rowsAreRead);
    connect(&m_keeper, &ListKeeper::failed, this, [this] {
        if (!m_keeper.isKnown())
            m_pane->showMessage(localized("The helper has given no answer."));
    });
    connect(&m_keeper, &ListKeeper::notTaken, this, [this] {
        say(localized("The helper has not taken the selection as it was made. What is "
                      "shown now is what it has."));
    });
    // The selection is among the settings, and others may have changed it.
    m_reloading.setSingleShot(true);
    m_reloading.setInterval(500ms);
    connect(&m_reloading, &QTimer::timeout, this, &ListBody::reload);
    Preferences::observe(this, [this] { m_reloading.start(); });
}

void ListBody::say(const QString &text)
{
    m_messages->sayOnly({{}, text});
}

void ListBody::addBeside(QWidget *widget)
{
    m_top->addWidget(widget);
}

void ListBody::addBelow(QWidget *widget)
{
    m_layout->addWidget(widget);
}

void ListBody::reload()
{
    m_switch->refresh();
    if (m_helper->isConnected())
        m_keeper.reload();
    Q_EMIT changed();
}

QString ListBody::summary() const
{
    if (!Preferences::find(m_texts.switchKey.toString())->value().toBool())
        return localized("off");
    if (!m_keeper.isKnown())
        return {};
    const QString count = QLocale().toString(m_rows.rowCount());
    return m_texts.isCheckable
               ? filled(localized("%@ of %@"), {QLocale().toString(m_rows.checkedCount()), count})
               : count;
}

void ListBody::focusSearch()
{
    m_pane->focusSearch();
}

void ListBody::rowsAreRead()
{
    if (m_rows.rowCount() > 0)
        m_pane->showList();
    else if (m_texts.sourceKey.isEmpty())
        m_pane->showMessage(m_texts.empty);
    else
        m_helper->ask(Protocol::sources, {}, this,
                      [this](const QVariant &answer) { explain(answer.toList()); });
    Q_EMIT changed();
}

void ListBody::explain(const QVariantList &sources)
{
    if (m_rows.rowCount() > 0)
        return;
    const EmptyList empty = EmptyList::of(m_texts.saveName, sources);
    QList<QPushButton *> buttons;
    for (const EmptyList::Other &other : empty.others) {
        auto *const button = new QPushButton(other.text);
        button->setAccessibleDescription(localized("Each source has a selection of its own."));
        connect(button, &QPushButton::clicked, this,
                [this, value = other.value] { takeSource(value); });
        buttons.append(button);
    }
    m_pane->showMessage(empty.text, buttons);
}

void ListBody::takeSource(int value)
{
    m_pane->showMessage(localized("Loading..."));
    Preferences::setLater(m_texts.sourceKey.toString(), value, this, [this](bool isWritten) {
        if (!isWritten)
            say(localized("The preferences can't be written."));
        reload();
    });
}
