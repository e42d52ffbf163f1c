#pragma once

#include <QDialog>
#include <QVariantList>

class HelperConnection;
class QButtonGroup;
class QVBoxLayout;

/// What there is to begin with: the media that were found on this computer, of which one is chosen
/// for each kind, and what happens to a stick. Main thread.
class FirstStartDialog : public QDialog
{
    Q_OBJECT
public:
    /// The connection outlives it.
    explicit FirstStartDialog(HelperConnection &helper, QWidget *parent = nullptr);

    /// Whether nothing was ever selected or synced here.
    static bool isNeeded();

    void accept() override;

private:
    void showSources(const QVariantList &rows);
    void addKind(const QString &kind, const QVariantList &rows);

    struct Choice
    {
        QString setting;
        QButtonGroup *sources; ///< the setting's value is the button's id
    };

    QVBoxLayout *m_kinds;
    QList<Choice> m_choices;
};
