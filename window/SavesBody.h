#pragma once

#include "window/ListBody.h"

#include <QHash>

class QGroupBox;
class QPushButton;
class RowView;

/// The game saves that are kept, those on the stick that are not, and the history of each. Main
/// thread.
class SavesBody : public ListBody
{
    Q_OBJECT
public:
    explicit SavesBody(HelperConnection *helper, QWidget *parent = nullptr);

    void reload() override;

private:
    QWidget *makeHistory();
    QWidget *makeButtons();
    QVariantList withStick(const QVariantList &kept) const;
    void askStick();
    void stickIsRead(const QVariantList &planned);
    void askHistory();
    void updateButtons();
    const ListRow *selectedSave();
    const ListRow *selectedBackup();
    void restore();
    void remove(const QString &identifier, const QString &question);
    void confirm(const QString &question, const QString &consequence, const QString &button,
                 const std::function<void()> &action);

    QStringList m_onStick; ///< identifiers of saves that the next sync will keep
    QString m_shownSave;   ///< whose history is shown
    RowModel m_backups;
    RowFilter m_shownBackups;
    RowView *m_history = nullptr;
    QGroupBox *m_group = nullptr;
    QPushButton *m_restore = nullptr;
    QPushButton *m_delete = nullptr;
    QPushButton *m_deleteAll = nullptr;
};
