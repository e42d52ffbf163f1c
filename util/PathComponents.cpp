#include "util/PathComponents.h"

#include <QList>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace PathComponents {

namespace {

qsizetype utf8Length(QStringView text)
{
    qsizetype bytes = 0;
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        // Each half of a surrogate pair stands for two of the pair's four bytes.
        bytes += code < 0x80 ? 1 : code < 0x800 || unit.isSurrogate() ? 2 : 3;
    }
    return bytes;
}

// At most so many bytes of the name, whole characters with their combining marks; what a cut leaves
// at the end must not be a blank or a dot, which FAT file systems drop.
QString cut(const QString &name, qsizetype bytes)
{
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, name);
    qsizetype length = 0;
    qsizetype used = 0;
    while (boundaries.toNextBoundary() >= 0) {
        used += utf8Length(QStringView(name).mid(length, boundaries.position() - length));
        if (used > bytes)
            break;
        length = boundaries.position();
    }
    while (length > 0 && (name.at(length - 1).isSpace() || name.at(length - 1) == u'.'))
        --length;
    return name.left(length);
}

} // namespace

qsizetype count(QStringView path)
{
    const QList<QStringView> components = path.split(u'/');
    const bool leadsAway =
        std::any_of(components.begin(), components.end(), [](QStringView component) {
            return component.isEmpty() || component == u"." || component == u"..";
        });
    return leadsAway ? 0 : components.size();
}

QString lastOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString folderOf(const QString &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 0));
}

QStringView extensionOf(QStringView path)
{
    const QStringView name = path.mid(path.lastIndexOf(u'/') + 1);
    const auto dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.mid(dot + 1) : QStringView();
}

QString stemOf(const QString &path)
{
    const QString name = lastOf(path);
    const qsizetype extension = extensionOf(name).size();
    return extension > 0 ? name.chopped(extension + 1) : name;
}

bool isName(const QString &name)
{
    return count(name) == 1 && safe(name) == name;
}

QString safe(const QString &name, QStringView suffix)
{
    QString result = name;
    // No character takes more than three bytes a unit: most names need no counting.
    if ((name.size() + suffix.size()) * 3 > maximumBytes) {
        const qsizetype room = maximumBytes - utf8Length(suffix);
        if (utf8Length(name) > room)
            result = cut(name, room);
    }
    const bool unusable = result.isEmpty() || result == u"." || result == u"..";
    return unusable ? QStringLiteral("_") : result;
}

QString numbered(const QString &path, int number)
{
    const QStringView extension = extensionOf(path);
    QString suffix = u'.' + QString::number(number);
    if (!extension.isEmpty())
        suffix.append(u'.').append(extension);
    const qsizetype stemEnd =
        extension.isEmpty() ? path.size() : path.size() - extension.size() - 1;
    const qsizetype nameStart = path.lastIndexOf(u'/') + 1;
    return path.left(nameStart) + safe(path.mid(nameStart, stemEnd - nameStart), suffix) + suffix;
}

} // namespace PathComponents
