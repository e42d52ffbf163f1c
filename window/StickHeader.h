#pragma once

#include <QWidget>

class HelperConnection;
class QLabel;
class QPushButton;
class StickWatch;

/// The stick with its name and free space, or how to connect one, or why there is no helper to
/// look for one. Main thread.
class StickHeader : public QWidget
{
    Q_OBJECT
public:
    /// Both outlive it.
    StickHeader(HelperConnection &helper, const StickWatch &watch, QWidget *parent = nullptr);

private:
    void refresh();
    void showTexts(const QString &title, const QString &text);

    HelperConnection &m_helper;
    const StickWatch &m_watch;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_again;
};
