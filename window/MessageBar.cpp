#include "window/MessageBar.h"

#include "platform/core/Localized.h"
#include "window/Sign.h"
#include "window/Words.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <utility>

namespace {

constexpr qsizetype longestText = 1000;

const Sign &signOf(MessageBar::Style style)
{
    switch (style) {
    case MessageBar::Style::Warning:
        return Signs::warning;
    case MessageBar::Style::Critical:
        return Signs::critical;
    case MessageBar::Style::Information:
        break;
    }
    return Signs::information;
}

/// Between the window's own colour and the message's.
QColor mixed(const QColor &window, const QColor &colour, double share)
{
    const auto part = [share](int from, int to) {
        return from + qRound((to - from) * share);
    };
    return {part(window.red(), colour.red()), part(window.green(), colour.green()),
            part(window.blue(), colour.blue())};
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel)
    , m_title(Words::label())
    , m_text(Words::label())
    , m_action(new QPushButton)
{
    m_title->setFont(Words::bold(font()));
    auto *close = new QPushButton(localized("Close"));
    close->setAccessibleDescription(localized("Closes this message"));
    connect(close, &QPushButton::clicked, this, &MessageBar::closeFirst);
    connect(m_action, &QPushButton::clicked, this, [this] {
        const auto act = m_messages.first().act;
        closeFirst();
        act();
    });
    auto *row = new QHBoxLayout(this);
    row->setSpacing(row->spacing() * 3 / 2);
    auto *words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_title);
    words->addWidget(m_text);
    row->addWidget(m_icon);
    row->addLayout(words, 1);
    row->addWidget(m_action, 0, Qt::AlignVCenter);
    row->addWidget(close, 0, Qt::AlignVCenter);
    hide();
}

void MessageBar::say(const Message &message)
{
    m_messages.removeIf([&message](const Message &each) {
        return each.title == message.title && each.text == message.text;
    });
    m_messages.prepend(message);
    showFirst();
}

void MessageBar::sayOnly(const Message &message)
{
    m_messages = {message};
    showFirst();
}

void MessageBar::closeFirst()
{
    m_messages.removeFirst();
    showFirst();
}

void MessageBar::showFirst()
{
    if (m_messages.isEmpty()) {
        hide();
        return;
    }
    const Message &first = m_messages.first();
    m_icon->setPixmap(signOf(first.style).picture(*this, 1.5));
    m_title->setText(first.title.left(longestText));
    m_title->setHidden(first.title.isEmpty());
    m_text->setText(first.text.left(longestText));
    m_text->setHidden(first.text.isEmpty());
    m_action->setText(first.action);
    m_action->setHidden(first.action.isEmpty());
    m_action->setAccessibleDescription((first.title + first.text).left(longestText));
    show();
    update();
    setAccessibleName(first.title.left(longestText));
    setAccessibleDescription(first.text.left(longestText));
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::paintEvent(QPaintEvent * /*event*/)
{
    if (m_messages.isEmpty())
        return;
    const QColor window = palette().color(QPalette::Window);
    const QColor colour(signOf(m_messages.first().style).colour);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixed(window, colour, 0.5));
    painter.setBrush(mixed(window, colour, 0.12));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}
