#include "window/KindPage.h"

KindPage::KindPage(HelperConnection *helper, const QString &kind, QWidget *parent)
    : QWidget(parent)
    , m_helper(helper)
    , m_kind(kind)
{
}

void KindPage::reload()
{
    Q_EMIT selectionChanged();
}

QString KindPage::summary() const
{
    return {};
}
