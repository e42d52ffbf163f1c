#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

/// A line about what has just happened, with a button for what may be done about it. It goes when
/// it is closed or replaced. Main thread.
class Notice : public QFrame
{
    Q_OBJECT
public:
    explicit Notice(QWidget *parent = nullptr);

    void say(const QString &text);
    void offer(const QString &text, const QString &button, std::function<void()> action);

private:
    QLabel *m_text;
    QPushButton *m_button;
    std::function<void()> m_action;
};
