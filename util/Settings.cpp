#include "util/Settings.h"

#include "platform/lists/UserDefaults.h"

namespace Settings {

namespace {

const QString selectionPrefix = QStringLiteral("enabled");

UserDefaults &store()
{
    return UserDefaults::standard();
}

template <typename T>
Key keyOf(const Setting<T> &setting)
{
    if constexpr (std::is_same_v<T, qint64> || std::is_enum_v<T>)
        return {setting.key(), static_cast<int>(setting.defaultValue), setting.range};
    else if constexpr (std::is_same_v<T, QString>)
        return {setting.key(), QString::fromUtf8(setting.defaultValue), {}};
    else
        return {setting.key(), QVariant::fromValue(setting.defaultValue), {}};
}

} // namespace

template <typename T>
typename Kept<T>::Value Setting<T>::operator()() const
{
    if constexpr (std::is_same_v<T, bool>)
        return store().boolForKey(key());
    else if constexpr (std::is_same_v<T, quint64>)
        return store().unsignedForKey(key());
    else if constexpr (std::is_same_v<T, QString>)
        return store().stringForKey(key());
    else if constexpr (std::is_same_v<T, QDateTime>)
        return store().dateForKey(key());
    else
        return static_cast<T>(store().integerForKey(key()));
}

template <typename T>
void Setting<T>::set(const std::optional<T> &value) const
{
    if (!value)
        store().setObject(key(), {});
    else if constexpr (std::is_enum_v<T>)
        store().setObject(key(), static_cast<qint64>(*value));
    else
        store().setObject(key(), QVariant::fromValue(*value));
}

template struct Setting<bool>;
template struct Setting<qint64>;
template struct Setting<quint64>;
template struct Setting<QString>;
template struct Setting<QDateTime>;
template struct Setting<MusicFolders>;
template struct Setting<MusicPrefix>;
template struct Setting<PhotoPrefix>;
template struct Setting<MusicSource>;
template struct Setting<PhotosSource>;
template struct Setting<BookmarkBrowser>;

bool takesPart(const QString &saveName)
{
    return store().boolForKey(QStringLiteral("sync") + saveName);
}

namespace {

/// Of the kind's source; 0 for those that share the first one's selection.
qint64 selectionNumber(const QString &saveName)
{
    if (saveName == u"Music")
        return static_cast<qint64>(musicLibrary());
    if (saveName == u"Photos")
        return static_cast<qint64>(photoLibrary());
    if (saveName != u"Bookmarks")
        return 0;
    const BookmarkBrowser browser = bookmarkSource();
    const bool hasOwn = browser == BookmarkBrowser::Places || browser == BookmarkBrowser::Chromium;
    return hasOwn ? static_cast<qint64>(browser) : 0;
}

} // namespace

MusicSource musicLibrary()
{
    const MusicSource source = musicSource();
    const bool isKnown = source == MusicSource::Folders || source == MusicSource::Rhythmbox;
    return isKnown ? source : MusicSource::ITunes;
}

PhotosSource photoLibrary()
{
    return photosSource() == PhotosSource::Folders ? PhotosSource::Folders : PhotosSource::IPhoto;
}

QString selectionName(const QString &saveName)
{
    const qint64 number = selectionNumber(saveName);
    return number == 0 ? saveName : saveName + u'@' + QString::number(number);
}

QString selectionKey(const QString &saveName)
{
    return selectionPrefix + selectionName(saveName);
}

std::optional<QStringList> selection(const QString &saveName)
{
    return store().stringArrayForKey(selectionKey(saveName));
}

void setSelection(const QString &saveName, const QStringList &identifiers)
{
    store().setObject(selectionKey(saveName), identifiers);
}

bool isSelectionLost()
{
    return store().wasSetAside() && !store().isAnySet(selectionPrefix);
}

QVariant Key::value() const
{
    switch (defaultValue.typeId()) {
    case QMetaType::Bool:
        return store().boolForKey(name);
    case QMetaType::Int:
        return store().integerForKey(name);
    case QMetaType::ULongLong:
        return store().unsignedForKey(name);
    default:
        return store().stringForKey(name);
    }
}

const std::vector<Key> &keys()
{
    static const std::vector<Key> table = {
        keyOf(firmwareVersion),
        keyOf(caravelFolder),
        keyOf(useSyncProfiles),
        keyOf(startOnLogin),
        keyOf(openOnMount),
        keyOf(syncOnMount),
        keyOf(ownOnly),
        keyOf(keepRemovedFiles),
        keyOf(unmountAfterSync),
        keyOf(playSyncCompletionSound),
        keyOf(regCheckForUpdates),
        keyOf(warnAboutUnformattedMemorySticks),
        keyOf(useDetailedLogging),
        keyOf(syncContacts),
        keyOf(syncMusic),
        keyOf(syncPhotos),
        keyOf(syncMovies),
        keyOf(syncBookmarks),
        keyOf(syncBackup),
        keyOf(syncDropboxes),
        keyOf(organizeMusicBy),
        keyOf(sortMusicBy),
        keyOf(sortPhotosBy),
        keyOf(movieConvertVideoResolution),
        keyOf(movieConvertVideoQuality),
        keyOf(movieConvertAudioQuality),
        keyOf(volumeBoost),
        keyOf(deinterlace),
        keyOf(useQuickTime),
        keyOf(musicSource),
        keyOf(photosSource),
        keyOf(bookmarkSource),
        keyOf(bookmarkProfile),
        keyOf(backupsToKeep),
        keyOf(lastSyncSize),
        keyOf(lastFreeSpace),
    };
    return table;
}

QVariantMap registeredDefaults()
{
    QVariantMap defaults;
    for (const Key &key : keys())
        defaults.insert(key.name, key.defaultValue);
    return defaults;
}

} // namespace Settings
