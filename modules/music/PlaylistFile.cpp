#include "modules/music/own/PlaylistFile.h"

#include "platform/files/FileManager.h"
#include "util/PathComponents.h"
#include "util/TextFile.h"

#include <QStringTokenizer>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <map>

namespace {

using PlaylistFile::Visitor;

/// The text cut where a line ends in any system's way; some parts may be empty.
template <typename Take>
void forEachLine(QStringView text, Take take)
{
    for (const QStringView line : qTokenize(text, u'\n')) {
        for (const QStringView part : qTokenize(line, u'\r'))
            take(part.trimmed());
    }
}

// --- M3U

// "123,Artist - Title"
QString titleOfExtInf(QStringView information)
{
    const QStringView text = information.mid(information.indexOf(u',') + 1).trimmed();
    const qsizetype dash = text.indexOf(u" - ");
    return (dash < 0 ? text : text.mid(dash + 3)).trimmed().toString();
}

QString readM3U(QStringView text, const Visitor &visit)
{
    constexpr QStringView information = u"#EXTINF:";
    constexpr QStringView listTitle = u"#PLAYLIST:";
    if (text.contains(u"#EXT-X-")) // of a stream's parts
        return {};
    QString own;
    QString title;
    forEachLine(text, [&](QStringView line) {
        if (line.startsWith(information, Qt::CaseInsensitive)) {
            title = titleOfExtInf(line.mid(information.size()));
        } else if (line.startsWith(listTitle, Qt::CaseInsensitive)) {
            own = line.mid(listTitle.size()).trimmed().toString();
        } else if (!line.isEmpty() && !line.startsWith(u'#')) {
            visit(line.toString(), title);
            title.clear();
        }
    });
    return own;
}

// --- PLS

std::optional<int> numberBehind(QStringView key, QStringView name)
{
    bool isNumber = false;
    const int number =
        key.startsWith(name, Qt::CaseInsensitive) ? key.mid(name.size()).toInt(&isNumber) : 0;
    return isNumber ? std::optional(number) : std::nullopt;
}

void readPLS(QStringView text, const Visitor &visit)
{
    struct Entry
    {
        QString place, title;
    };
    std::map<int, Entry> entries;
    forEachLine(text, [&](QStringView line) {
        const qsizetype sign = line.indexOf(u'=');
        if (sign < 0)
            return;
        const QStringView key = line.left(sign).trimmed();
        const QStringView value = line.mid(sign + 1).trimmed();
        if (const auto file = numberBehind(key, u"File"))
            entries[*file].place = value.toString();
        else if (const auto title = numberBehind(key, u"Title"))
            entries[*title].title = value.toString();
    });
    for (const auto &[number, entry] : entries) {
        if (!entry.place.isEmpty())
            visit(entry.place, entry.title);
    }
}

// --- XSPF

class XspfReader
{
public:
    XspfReader(const QByteArray &contents, const QString &path, const Visitor &visit)
        : m_xml(contents)
        , m_base(QUrl::fromLocalFile(path))
        , m_visit(visit)
    {
    }

    QString read()
    {
        if (m_xml.readNextStartElement() && m_xml.name() == u"playlist")
            readPlaylist();
        return m_title;
    }

private:
    QUrl baseOf(const QUrl &outer) const
    {
        const QStringView own = m_xml.attributes().value(
            QStringLiteral("http://www.w3.org/XML/1998/namespace"), QStringLiteral("base"));
        return own.isEmpty() ? outer : outer.resolved(QUrl(own.toString()));
    }

    QString text() { return m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }

    void readPlaylist()
    {
        const QUrl base = baseOf(m_base);
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"title")
                m_title = text();
            else if (m_xml.name() == u"trackList")
                readTracks(baseOf(base));
            else
                m_xml.skipCurrentElement();
        }
    }

    void readTracks(const QUrl &base)
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"track")
                readTrack(baseOf(base));
            else
                m_xml.skipCurrentElement();
        }
    }

    void readTrack(const QUrl &base)
    {
        QString place;
        QString title;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"location" && place.isEmpty()) {
                const QUrl own = baseOf(base);
                place = own.resolved(QUrl(text())).toString(QUrl::FullyEncoded);
            } else if (m_xml.name() == u"title") {
                title = text();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (!place.isEmpty())
            m_visit(place, title);
    }

    QXmlStreamReader m_xml;
    const QUrl m_base;
    const Visitor &m_visit;
    QString m_title;
};

} // namespace

bool PlaylistFile::isOne(QStringView extension)
{
    static constexpr std::array<QStringView, 4> known = {u"m3u", u"m3u8", u"pls", u"xspf"};
    return std::ranges::any_of(
        known, [&](QStringView one) { return extension.compare(one, Qt::CaseInsensitive) == 0; });
}

FileResult<QString> PlaylistFile::read(const QString &path, const Visitor &visit)
{
    const QStringView extension = PathComponents::extensionOf(path);
    if (extension.compare(u"xspf", Qt::CaseInsensitive) == 0) {
        const auto contents = files().readFile(path, TextFile::defaultLimit);
        return contents ? FileResult(XspfReader(*contents, path, visit).read()) : contents.error();
    }
    const FileResult<QString> text = TextFile::read(path);
    if (!text)
        return text.error();
    if (extension.compare(u"pls", Qt::CaseInsensitive) != 0)
        return readM3U(*text, visit);
    readPLS(*text, visit);
    return QString();
}
