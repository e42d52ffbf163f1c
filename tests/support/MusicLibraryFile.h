#pragma once

#include "support/TestSupport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Builds an iTunes library file piece by piece.
class MusicLibraryFile
{
public:
    /// The XML of a dictionary's inside, as `string("Name", "x") + integer("Track ID", 5)`.
    static QByteArray string(const char *key, const QString &value)
    {
        return QByteArray("<key>") + key + "</key><string>" + value.toHtmlEscaped().toUtf8() +
               "</string>";
    }
    static QByteArray integer(const char *key, int value)
    {
        return QByteArray("<key>") + key + "</key><integer>" + QByteArray::number(value) +
               "</integer>";
    }
    static QByteArray flag(const char *key) { return QByteArray("<key>") + key + "</key><true/>"; }

    /// A track that is a file at the path; `more` is added to its dictionary.
    void addFile(int id, const QString &path, const QByteArray &more)
    {
        addTrack(id, string("Track Type", u"File"_s) +
                         string("Location", u"file://localhost"_s + path) + more);
    }
    void addTrack(int id, const QByteArray &inside)
    {
        m_tracks += "<key>" + QByteArray::number(id) + "</key><dict>" + integer("Track ID", id) +
                    inside + "</dict>\n";
    }
    void addPlaylist(const QString &name, const QList<int> &ids, const QByteArray &more = {})
    {
        QByteArray items;
        for (const int id : ids)
            items += "<dict>" + integer("Track ID", id) + "</dict>";
        addRawPlaylist(string("Name", name) + more + "<key>Playlist Items</key><array>" + items +
                       "</array>");
    }
    void addRawPlaylist(const QByteArray &inside)
    {
        m_playlists += "<dict>" + inside + "</dict>\n";
    }

    QByteArray contents() const
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n"
               "<key>Major Version</key><integer>1</integer>\n<key>Tracks</key><dict>\n" +
               m_tracks + "</dict>\n<key>Playlists</key><array>\n" + m_playlists +
               "</array></dict></plist>\n";
    }

private:
    QByteArray m_tracks;
    QByteArray m_playlists;
};
