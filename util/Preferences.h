#pragma once

#include <QString>
#include <QVariantMap>

#include <vector>

/// The keys of the shared preferences domain that have a default, and those defaults. Stored
/// numbers are frozen: other versions of the system read them.
namespace Preferences {

struct Key
{
    QString name;
    QVariant defaultValue; ///< its type is the key's type
};

/// In the order in which the defaults are installed.
const std::vector<Key> &keys();

/// The same as the store's layer of defaults takes them.
QVariantMap registeredDefaults();

/// Whether the user asked for detailed logging ("useDetailedLogging").
bool useDetailedLogging();

/// The documents folder: the preference `CaravelFolder`, "~" expanded, with "Caravel" appended.
QString documentsFolder();

/// "~/Library/Application Support/Caravel", "~" expanded.
QString supportFolder();

/// "Dropboxes/<name>" in the documents folder.
QString dropboxFolder(const QString &name);

} // namespace Preferences
