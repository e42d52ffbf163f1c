#pragma once

#include <QAction>
#include <QPushButton>
#include <QRegularExpression>

/// A button that does what an action does, and is shown and enabled as that is. Main thread.
class ActionButton : public QPushButton
{
    Q_OBJECT
public:
    /// The action outlives it.
    explicit ActionButton(QAction &action, QWidget *parent = nullptr)
        : QPushButton(parent)
        , m_action(action)
    {
        connect(this, &QPushButton::clicked, &action, &QAction::trigger);
        connect(&action, &QAction::changed, this, &ActionButton::follow);
        follow();
    }

private:
    void follow()
    {
        // What a menu needs behind a text that opens a dialog, a button does without.
        static const QRegularExpression dots(QStringLiteral("[ \u00A0]?(\u2026|\\.\\.\\.)$"));
        setText(m_action.iconText().remove(dots));
        setToolTip(m_action.statusTip());
        setAccessibleDescription(m_action.statusTip());
        setEnabled(m_action.isEnabled());
        setVisible(m_action.isVisible());
    }

    QAction &m_action;
};
