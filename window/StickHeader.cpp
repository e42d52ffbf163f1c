#include "window/StickHeader.h"

#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/TextFormat.h"
#include "window/StickWatch.h"
#include "window/Words.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace {

// Dimmed where there is none.
QPixmap picture(bool mounted, const QWidget &widget)
{
    const int side = 3 * widget.fontMetrics().height();
    const QIcon icon(Bundle::main().resourcePath() + QStringLiteral("/Stick.png"));
    return icon.pixmap({side, side}, widget.devicePixelRatioF(),
                       mounted ? QIcon::Normal : QIcon::Disabled);
}

QString sizeIn(const QVariantMap &stick, const char *key)
{
    return FileManagerTools::sizeDescriptionForByteCount(
        stick.value(QString::fromLatin1(key)).toULongLong());
}

} // namespace

StickHeader::StickHeader(HelperConnection &helper, const StickWatch &watch, QWidget *parent)
    : QWidget(parent)
    , m_helper(helper)
    , m_watch(watch)
    , m_icon(new QLabel)
    , m_title(Words::label())
    , m_text(Words::label())
    , m_again(new QPushButton(localized("Try Again")))
{
    m_title->setFont(Words::heading(font()));
    m_again->setAccessibleDescription(localized("Starts the helper"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto *words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_title);
    words->addWidget(m_text);
    row->addWidget(m_icon);
    row->addLayout(words, 1);
    row->addWidget(m_again);
    connect(m_again, &QPushButton::clicked, &helper, &HelperConnection::search);
    connect(&helper, &HelperConnection::stateChanged, this, &StickHeader::refresh);
    connect(&watch, &StickWatch::changed, this, &StickHeader::refresh);
    refresh();
}

void StickHeader::showTexts(const QString &title, const QString &text)
{
    m_title->setText(title);
    m_text->setText(text);
}

void StickHeader::refresh()
{
    const QVariantMap &stick = m_watch.stick();
    const bool mounted = m_watch.state().mounted;
    m_icon->setPixmap(picture(mounted, *this));
    m_again->setVisible(m_helper.state() == HelperConnection::State::NoHelper);
    switch (m_helper.state()) {
    case HelperConnection::State::Searching:
        return showTexts(localized("Starting..."), localized("Caravel's helper is being started."));
    case HelperConnection::State::NoHelper:
        return showTexts(localized("There is no helper"), m_helper.failure());
    case HelperConnection::State::Connected:
        break;
    }
    if (!mounted)
        return showTexts(localized("No PSP is connected"),
                         localized("Connect the PSP with a USB cable and choose \"USB Connection\" "
                                   "in its settings, or put its Memory Stick into a card reader."));
    const QString name = Rows::line(Rows::text(stick, u"name"));
    showTexts(
        name.isEmpty() ? localized("Memory Stick") : name,
        filled(localized("%@ free of %@"), {sizeIn(stick, "free"), sizeIn(stick, "capacity")}));
}
