#pragma once

#include "window/Icons.h"
#include "window/KindTexts.h"
#include "window/ListKeeper.h"
#include "window/PageBody.h"
#include "window/RowFilter.h"

class HelperConnection;
class ListPane;
class MessageBar;
class QHBoxLayout;
class QVBoxLayout;
class SettingEditor;

/// A kind whose rows are checked one by one. Main thread.
class ListBody : public PageBody
{
    Q_OBJECT
public:
    ListBody(HelperConnection *helper, const QString &saveName, QWidget *parent = nullptr);

    void reload() override;
    QString summary() const override;
    void focusSearch() override;

protected:
    HelperConnection &helper() const { return *m_helper; }
    RowModel &rows() { return m_rows; }
    const RowModel &rows() const { return m_rows; }
    ListKeeper &keeper() { return m_keeper; }
    ListPane &pane() const { return *m_pane; }
    /// Says what has just happened, in the place of what was said before.
    void say(const QString &text);
    MessageBar &messages() const { return *m_messages; }
    /// Goes beside the switch, or below the list.
    void addBeside(QWidget *widget);
    void addBelow(QWidget *widget);

private:
    void rowsAreRead();
    void explain(const QVariantList &sources);
    void takeSource(int value);

    HelperConnection *const m_helper;
    const KindTexts m_texts;
    Icons m_icons;
    RowModel m_rows;
    RowFilter m_filter;
    ListKeeper m_keeper;
    ListPane *m_pane;
    MessageBar *m_messages;
    SettingEditor *m_switch;
    QHBoxLayout *m_top;
    QVBoxLayout *m_layout;
    QTimer m_reloading; // single shot: one change of the settings seldom comes alone
};
