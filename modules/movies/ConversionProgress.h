#pragma once

#include <QByteArray>
#include <QString>

/// What the converter's output tells: how far it is, and what went wrong. Fed with the chunks as
/// they are read: those that begin with "frame=" while it runs are progress, from all others the
/// duration is learnt.
class ConversionProgress
{
public:
    /// `videoQuality` decides the frame rate that the converter is told: 14.97 frames a second for
    /// 0, else 29.97.
    explicit ConversionProgress(qint64 videoQuality)
        : m_videoQuality(videoQuality)
    {
    }

    /// The text for the user before anything is known, localized.
    static QString initialText();

    /// Takes a chunk; true when it was one of progress, and text() is new.
    bool take(const QByteArray &chunk, bool isRunning);
    QString text() const { return m_text; }

    /// Frames that the whole movie will have; 0 while unknown.
    quint32 totalFrames() const { return m_totalFrames; }

    /// Why there is no movie: the last line that began with "convert.sh: ", without that. Empty
    /// where the converter gave no reason.
    QString reason() const { return QString::fromUtf8(m_reason); }
    /// What is wrong with the movie that there is: the last line that began with "Warning: ".
    QString warning() const { return QString::fromUtf8(m_warning); }

private:
    void readLines(const QByteArray &chunk);
    void learnDuration();
    void append(const QByteArray &chunk);
    quint32 percentAt(quint32 frame) const;

    qint64 m_videoQuality;
    QString m_text = initialText();
    QByteArray m_movieLogBuffer;
    quint32 m_totalFrames = 0;
    QByteArray m_line; // that isn't ended yet
    QByteArray m_reason;
    QByteArray m_warning;
};
