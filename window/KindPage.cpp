#include "window/KindPage.h"

#include "frontend/Preferences.h"
#include "window/ContactsBody.h"
#include "window/MoviesBody.h"
#include "window/SavesBody.h"

#include <QVBoxLayout>

namespace {

PageBody *makeBody(HelperConnection *helper, const QString &kind)
{
    Preferences::begin();
    if (kind == u"Contacts")
        return new ContactsBody;
    if (kind == u"Movies")
        return new MoviesBody(helper);
    if (kind == u"Backup")
        return new SavesBody(helper);
    return new ListBody(helper, kind);
}

} // namespace

KindPage::KindPage(HelperConnection *helper, const QString &kind, QWidget *parent)
    : QWidget(parent)
    , m_body(makeBody(helper, kind))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_body);
    connect(m_body, &PageBody::changed, this, &KindPage::selectionChanged);
}

void KindPage::reload()
{
    m_body->reload();
}

QString KindPage::summary() const
{
    return m_body->summary();
}

void KindPage::focusSearch()
{
    m_body->focusSearch();
}

void KindPage::addFiles(const QStringList &paths)
{
    m_body->addFiles(paths);
}
