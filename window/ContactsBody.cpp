#include "window/ContactsBody.h"

#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "window/SettingEditor.h"

#include <QLabel>
#include <QVBoxLayout>

ContactsBody::ContactsBody(QWidget *parent)
    : PageBody(parent)
    , m_switch(new SettingEditor(Settings::syncContacts.name, SettingEditor::Form::Short))
{
    auto *const text = new QLabel(localized(
        "Everybody in this computer's address book is put on one page, with a small picture where "
        "there is one. It is made anew at each sync, and only where something has changed it is "
        "written.\n\nThe PSP shows the page in its browser: with bookmarks synced, one of them "
        "leads there. System software 2.00 or later is needed."));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_switch);
    layout->addWidget(text);
    layout->addStretch();
    connect(m_switch, &SettingEditor::written, this, &PageBody::changed);
    Preferences::observe(this, [this] { reload(); });
}

void ContactsBody::reload()
{
    m_switch->refresh();
    Q_EMIT changed();
}

QString ContactsBody::summary() const
{
    return Settings::syncContacts() ? localized("on") : localized("off");
}
