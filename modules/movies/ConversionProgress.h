#pragma once

#include <QByteArray>
#include <QString>

/// What the converter's output tells of how far it is. Fed with the chunks as they are read: those
/// that begin with "frame=" are progress, from all others the duration is learnt.
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
    bool take(const QByteArray &chunk);
    QString text() const { return m_text; }

    /// Frames that the whole movie will have; 0 while unknown.
    quint32 totalFrames() const { return m_totalFrames; }

private:
    void learnDuration();
    void append(const QByteArray &chunk);
    quint32 percentAt(quint32 frame) const;

    qint64 m_videoQuality;
    QString m_text = initialText();
    QByteArray m_movieLogBuffer;
    quint32 m_totalFrames = 0;
};
