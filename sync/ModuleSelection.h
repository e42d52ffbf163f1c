#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the user selected in one module, kept in the preferences and, per stick, in a profile on
/// it.
namespace ModuleSelection {

/// The selection that counts for the volume: the stick's own profile while "useSyncProfiles" is on
/// and the stick has a usable one, else the preference "enabled" + save name. Nothing where neither
/// is there. Any thread.
std::optional<QStringList> read(const QString &moduleSaveName, const QString &volume);

/// Whether the stick's own profile counts, is there, and can't be read. Any thread.
bool hasUnreadableProfile(const QString &moduleSaveName, const QString &volume);

/// Stores the selection in the preferences, and in the volume's profile when the volume has been
/// synced before. An empty volume path stands for no volume.
void store(const QStringList &identifiers, const QString &moduleSaveName, const QString &volume);

/// Whether a text may stand for a thing that can be selected. Slashes in names are the user's own;
/// what would lead out of a folder is none.
bool isIdentifier(const QString &text);

/// Puts another identifier in the place of one, in the preferences' selection and in the volume's
/// profile, wherever it is selected.
void rename(const QString &identifier, const QString &newIdentifier, const QString &moduleSaveName,
            const QString &volume);

} // namespace ModuleSelection
