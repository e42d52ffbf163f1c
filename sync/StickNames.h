#pragma once

#include <QString>

#include <limits>

/// What the stick's file system makes of names: which it can't hold, and which it takes for one.
/// Fixed for a run. Any thread.
class StickNames
{
public:
    struct Policy
    {
        /// Of the FAT family, or what mounts as it does: some characters, and dots and blanks at a
        /// component's end, can't be kept, and dots there are ignored when names are compared.
        bool isFatLike = false;
        bool tellsCaseApart = true;
        quint64 largestFile = std::numeric_limits<quint64>::max(); ///< bytes
        bool refusesDeviceNames = false; ///< as DOS named its devices, whatever extension follows
    };

    /// Names stay as they are on a volume of the default policy.
    StickNames(QString volume, Policy policy);

    /// What the mounted volume is found to do: by the type of its mount, and by looking a name that
    /// lies on it up in the other letter case. Nothing is written.
    static StickNames of(const QString &volume);

    /// The destination as the stick can hold it: in each component below the volume the characters
    /// below 0x20 and `" * : < > ? \ |` become "_", a dot at the end becomes "_", blanks at the end
    /// go, "._" at the start becomes "__", and what is left empty becomes "_". Where devices' names
    /// are refused, "_" follows them.
    QString destination(const QString &path) const;

    /// The same for all paths that the stick takes for one. Paths that were written by an earlier
    /// version of the system keep their key, so nothing becomes "_" here.
    QString key(const QString &path) const;

    /// Bytes; a larger file is never begun.
    quint64 largestFile() const { return m_policy.largestFile; }

    /// Whether two paths that differ may be one to the stick.
    bool confusesPaths() const { return m_policy.isFatLike || !m_policy.tellsCaseApart; }

private:
    QString m_volume;
    Policy m_policy;
};
