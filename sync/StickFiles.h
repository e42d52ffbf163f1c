#pragma once

#include <QString>

/// Names and places on the stick that several parts of the engine share.
namespace StickFiles {

/// ".caravel" in the volume's root; its existence marks a stick that has been synced.
QString caravelFolder(const QString &volume);

/// Where a restore stages what it puts back and what it takes away; it makes no stick a synced one.
/// Whatever lies there when nothing is being restored was left behind.
QString restoreFolder(const QString &volume);

/// Archive of one number: bytes that the synced media occupy after the last run.
QString lastSyncSize(const QString &volume);

/// List of the volume-relative paths that a module placed or found in place in the last run.
QString syncIndex(const QString &volume, const QString &moduleSaveName);

/// List of the volume-relative paths that a run is to place, in their order: there from before its
/// first change until its indexes are written.
QString unfinished(const QString &volume);

/// Per kind's save name, what the last sync was made of: see CVSyncModule::basis().
QString lastSelection(const QString &volume);

/// List of the identifiers selected for this stick.
QString selectionProfile(const QString &volume, const QString &moduleSaveName);

/// The path with the volume's mount path cut off, beginning with a slash; a path that doesn't lie
/// on the volume comes back whole.
QString relativeToVolume(const QString &path, const QString &volume);

/// Whether the path is the volume's root or lies below it.
bool isOnVolume(const QString &path, const QString &volume);

} // namespace StickFiles
