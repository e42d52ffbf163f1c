#pragma once

#include <QWidget>

class HelperConnection;
class PageBody;

/// The page of one kind of media: what there is, and what of it is to be on the stick. Main thread.
class KindPage : public QWidget
{
    Q_OBJECT
public:
    /// `kind` is the save name ("Music", "Photos", "Movies", "Bookmarks", "Contacts", "Backup").
    KindPage(HelperConnection *helper, const QString &kind, QWidget *parent = nullptr);

    /// Reads everything anew. Place and selection stay.
    void reload();

    /// A short text for the side list, as "3 of 12"; empty while nothing is known.
    QString summary() const;

    /// Puts the cursor into the search field, where there is one.
    void focusSearch();

    /// Adds files to what there is; only movies take any.
    void addFiles(const QStringList &paths);

Q_SIGNALS:
    /// What is to be synced, or what there is, has changed; summary() too.
    void selectionChanged();

private:
    PageBody *m_body;
};
