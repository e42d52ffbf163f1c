#pragma once

#include <QFrame>
#include <QList>

#include <functional>

class QLabel;
class QPushButton;

/// Messages, one after the other, until each is closed. Main thread.
class MessageBar : public QFrame
{
    Q_OBJECT
public:
    explicit MessageBar(QWidget *parent = nullptr);

    enum class Style { Warning, Information, Critical };
    struct Message
    {
        QString title = {}; ///< empty: none
        QString text = {};
        Style style = Style::Information;
        QString action = {}; ///< a button's text; empty: none
        std::function<void()> act = {};
    };
    /// The newest is shown first; one that is there already comes to the front.
    void say(const Message &message);
    /// Shows it in the place of all that are there.
    void sayOnly(const Message &message);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void closeFirst();
    void showFirst();

    QList<Message> m_messages; // the newest first
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_action;
};
