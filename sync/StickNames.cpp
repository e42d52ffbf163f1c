#include "sync/StickNames.h"

#include "platform/files/FileManager.h"
#include "sync/StickFiles.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace {

bool canNotBeHeld(QChar c)
{
    return c.unicode() < 0x20 || QStringView(u"\"*:<>?\\|").contains(c);
}

QString heldComponent(QStringView component)
{
    QString name = component.toString();
    std::ranges::replace_if(name, canNotBeHeld, QChar(u'_'));
    while (name.endsWith(u' '))
        name.chop(1);
    for (qsizetype i = name.size(); i-- > 0 && name[i] == u'.';)
        name[i] = u'_';
    // Another file's companion, which goes when that one comes.
    if (name.startsWith(u"._"))
        name[0] = u'_';
    return name.isEmpty() ? QStringLiteral("_") : name;
}

QString withDeviceMarked(QString component)
{
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|(com|lpt)[0-9])(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    if (const auto match = device.match(component); match.hasMatch())
        component.insert(match.capturedEnd(1), u'_');
    return component;
}

QString withoutDotsAtEnds(const QString &path)
{
    if (!path.contains(u"./") && !path.endsWith(u'.'))
        return path;
    QStringList components = path.split(u'/');
    for (QString &component : components) {
        while (component.endsWith(u'.'))
            component.chop(1);
    }
    return components.join(u'/');
}

/// One character for one, as file systems do: "ß" and "ss" stay apart.
QString caseFolded(QString path)
{
    std::ranges::transform(path, path.begin(), [](QChar c) { return c.toCaseFolded(); });
    return path;
}

QString inOtherCase(const QString &name)
{
    const QString upper = name.toUpper();
    return upper == name ? name.toLower() : upper;
}

bool tellsCaseApart(const QString &volume)
{
    const std::vector<FolderEntry> root = files().entries(volume);
    const auto isListed = [&root](const QString &name) {
        return std::ranges::any_of(root,
                                   [&](const FolderEntry &entry) { return entry.path == name; });
    };
    for (const FolderEntry &entry : root) {
        const QString other = inOtherCase(entry.path);
        if (other != entry.path && !isListed(other))
            return !files().linkStatus(volume + u'/' + other).exists();
    }
    return true;
}

} // namespace

StickNames::StickNames(QString volume, Policy policy)
    : m_volume(std::move(volume))
    , m_policy(policy)
{
}

StickNames StickNames::of(const QString &volume)
{
    static constexpr std::array fat{u"vfat", u"msdos"};
    static constexpr std::array ntfs{u"ntfs", u"ntfs3", u"fuseblk"}; // a fuseblk may be exFAT too
    const QString type = files().fileSystemType(volume);
    const auto isOneOf = [&type](const auto &types) {
        return std::ranges::find(types, QStringView(type)) != types.end();
    };
    Policy policy{.isFatLike = isOneOf(fat) || isOneOf(ntfs) || type == u"exfat",
                  .tellsCaseApart = tellsCaseApart(volume)};
    policy.refusesDeviceNames = isOneOf(ntfs);
    if (isOneOf(fat))
        policy.largestFile = std::numeric_limits<quint32>::max();
    return StickNames(volume, policy);
}

QString StickNames::destination(const QString &path) const
{
    if (!m_policy.isFatLike || !StickFiles::isOnVolume(path, m_volume))
        return path;
    QString held = m_volume;
    for (const QStringView component :
         QStringView(path).mid(m_volume.size()).split(u'/', Qt::SkipEmptyParts))
        held.append(u'/').append(m_policy.refusesDeviceNames
                                     ? withDeviceMarked(heldComponent(component))
                                     : heldComponent(component));
    return held;
}

QString StickNames::key(const QString &path) const
{
    if (!confusesPaths())
        return path;
    const QString name = m_policy.isFatLike ? withoutDotsAtEnds(path) : path;
    return m_policy.tellsCaseApart ? name : caseFolded(name);
}
