#include "window/MainWindow.h"

#include "frontend/HelperConnection.h"
#include "platform/core/Localized.h"
#include "window/KindPage.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>

namespace {

struct Kind
{
    const char *saveName;
    const char *title;
};

constexpr Kind kinds[] = {
    {"Music", "Music"},         {"Photos", "Photos"},     {"Movies", "Movies"},
    {"Bookmarks", "Bookmarks"}, {"Contacts", "Contacts"}, {"Backup", "Game Saves"},
};

} // namespace

MainWindow::MainWindow(HelperConnection *helper)
    : m_helper(helper)
    , m_kinds(new QListWidget)
    , m_pages(new QStackedWidget)
{
    auto *middle = new QWidget;
    auto *row = new QHBoxLayout(middle);
    row->addWidget(m_kinds);
    row->addWidget(m_pages, 1);
    setCentralWidget(middle);
    addPages();
    resize(900, 640);
}

void MainWindow::addPages()
{
    for (const Kind &kind : kinds) {
        auto *page = new KindPage(m_helper, QString::fromLatin1(kind.saveName));
        m_kinds->addItem(localized(kind.title));
        m_pages->addWidget(page);
        connect(m_helper, &HelperConnection::stateChanged, page, [this, page] {
            if (m_helper->isConnected())
                page->reload();
        });
    }
    connect(m_kinds, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_kinds->setCurrentRow(0);
}
