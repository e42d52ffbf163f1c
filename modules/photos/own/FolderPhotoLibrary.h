#pragma once

#include "modules/photos/PhotoLibrary.h"

#include <QSet>

#include <functional>

/// The pictures folder as a library: it and each folder below it that holds pictures is an album,
/// by its path (the pictures folder by its own name), with the pictures in byte order of their
/// names. Hidden files and folders are passed over, links to folders not followed. Of the albums
/// selected those are told of that can't be read. Fails where the folder is missing or can't be
/// read. Any thread.
FileResult<PhotoLibrary> readFolderPhotos(const QString &folder,
                                          const std::function<bool(QStringView)> &isPicture,
                                          const QSet<QString> &selected);
