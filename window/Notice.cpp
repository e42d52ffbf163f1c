#include "window/Notice.h"

#include "platform/core/Localized.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <utility>

Notice::Notice(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel)
    , m_button(new QPushButton)
{
    setFrameShape(StyledPanel);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *const closing = new QToolButton;
    closing->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    closing->setAutoRaise(true);
    closing->setAccessibleName(localized("Close"));
    closing->setToolTip(localized("Close"));
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    layout->addWidget(closing);
    connect(closing, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_button, &QPushButton::clicked, this, [this] {
        hide();
        std::exchange(m_action, {})();
    });
    hide();
}

void Notice::say(const QString &text)
{
    m_button->hide();
    m_text->setText(text);
    show();
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void Notice::offer(const QString &text, const QString &button, std::function<void()> action)
{
    m_action = std::move(action);
    m_button->setText(button);
    say(text);
    m_button->show();
}
