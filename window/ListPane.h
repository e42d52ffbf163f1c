#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;
class RowFilter;
class RowView;

/// A list with its search field, its buttons for all and none, and a line that counts. Where there
/// is nothing to show it says why. Main thread.
class ListPane : public QWidget
{
    Q_OBJECT
public:
    /// `name` is what the list holds, for who doesn't see it. The filter outlives the pane.
    ListPane(RowFilter *filter, const QString &name, bool isCheckable, QWidget *parent = nullptr);

    RowView &view() { return *m_view; }
    void focusSearch();
    /// The list, or in its place a text.
    void showList();
    void showMessage(const QString &text);
    /// The same with buttons below it, which it takes.
    void showMessage(const QString &text, const QList<QPushButton *> &buttons);

private:
    void updateCounts();
    void enableTop(bool enabled);
    QWidget *makeMessage();
    QWidget *makeTop(bool isCheckable);
    void checkShown(bool checked);
    void toggleSelected();

    RowFilter *const m_filter;
    const bool m_isCheckable;
    QLineEdit *m_search;
    QPushButton *m_all = nullptr;
    QPushButton *m_none = nullptr;
    RowView *m_view;
    QStackedWidget *m_stack;
    QLabel *m_message = nullptr;
    QVBoxLayout *m_buttons = nullptr;
    QLabel *m_counts;
    QTimer m_counting; // many rows may change at once
};
