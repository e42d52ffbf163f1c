#include "window/MessageBar.h"

#include "platform/core/Localized.h"
#include "window/Words.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <utility>

namespace {

constexpr qsizetype longestText = 1000;

QStyle::StandardPixmap pictureOf(MessageBar::Style style)
{
    switch (style) {
    case MessageBar::Style::Warning:
        return QStyle::SP_MessageBoxWarning;
    case MessageBar::Style::Critical:
        return QStyle::SP_MessageBoxCritical;
    case MessageBar::Style::Information:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel)
    , m_title(Words::label())
    , m_text(Words::label())
    , m_action(new QPushButton)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    for (QLabel *label : {m_title, m_text})
        label->setForegroundRole(QPalette::ToolTipText);
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
    auto *words = new QVBoxLayout;
    words->addWidget(m_title);
    words->addWidget(m_text);
    row->addWidget(m_icon, 0, Qt::AlignTop);
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

void MessageBar::withdraw(const QString &title)
{
    m_messages.removeIf([&title](const Message &each) { return each.title == title; });
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
    const int side = style()->pixelMetric(QStyle::PM_LargeIconSize);
    m_icon->setPixmap(style()->standardIcon(pictureOf(first.style)).pixmap(side));
    m_title->setText(first.title.left(longestText));
    m_text->setText(first.text.left(longestText));
    m_text->setHidden(first.text.isEmpty());
    m_action->setText(first.action);
    m_action->setHidden(first.action.isEmpty());
    show();
    setAccessibleName(first.title.left(longestText));
    setAccessibleDescription(first.text.left(longestText));
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
