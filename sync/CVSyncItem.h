#pragma once

#include <QString>

/// One file (or folder) that a module wants placed.
struct CVSyncItem
{
    CVSyncItem();
    CVSyncItem(QString itemSource, QString itemDestination, QString itemDescription);

    QString source;      ///< absolute path of what is copied
    QString destination; ///< absolute path of the copy, in normal form
    QString description; ///< shown while the item is processed
    quint64 size = 0;    ///< bytes of the source; 0 until measured
};
