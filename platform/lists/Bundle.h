#pragma once

#include <QString>

/// A program's bundle: a folder with "Contents/Info.plist", "Contents/bin" and
/// "Contents/Resources".
class Bundle
{
public:
    explicit Bundle(QString path);

    /// The bundle that the running executable lies in (its own path, links resolved). Any thread.
    static Bundle main();

    /// Whether the folder has a "Contents/Info.plist" that can be read.
    bool exists() const;

    /// Absolute, in normal form.
    QString path() const { return m_path; }
    QString resourcePath() const;

    /// A text or number of Info.plist as text; empty where it is missing.
    QString infoString(const QString &key) const;
    QString version() const; ///< "CFBundleVersion": the build number

    /// What --version tells of a program: its name, the release and the build number.
    QString versionLine(const QString &program) const;

    /// Full path of "Contents/bin/<CFBundleExecutable>"; empty where the key holds no file name.
    QString executable() const;

private:
    QString m_path;
};
