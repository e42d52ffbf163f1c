#pragma once

#include "window/Icons.h"
#include "window/KindTexts.h"
#include "window/ListKeeper.h"
#include "window/PageBody.h"
#include "window/RowFilter.h"

class HelperConnection;
class ListPane;
class Notice;
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
    Notice &notice() const { return *m_notice; }
    /// Goes between the switch and the list, or below the list.
    void addAbove(QWidget *widget);
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
    Notice *m_notice;
    SettingEditor *m_switch;
    QVBoxLayout *m_layout;
    QTimer m_reloading; // single shot: one change of the settings seldom comes alone
};
