#include "platform/desktop/Sounds.h"

#include "platform/core/Log.h"

#include <QSoundEffect>
#include <QUrl>

namespace {

class EffectSounds : public Sounds
{
public:
    explicit EffectSounds(QString folder)
        : m_folder(std::move(folder))
    {
    }

    void play(const QString &name) override
    {
        // Made anew for each: an idle effect holds the sound system's connection open.
        m_effect = std::make_unique<QSoundEffect>();
        QSoundEffect *effect = m_effect.get();
        QObject::connect(effect, &QSoundEffect::playingChanged, effect, [this, effect] {
            if (!effect->isPlaying())
                release(effect);
        });
        QObject::connect(effect, &QSoundEffect::statusChanged, effect, [this, effect, name] {
            if (effect->status() != QSoundEffect::Error)
                return;
            qCWarning(lcPlatform).noquote() << "Can't play the sound" << name;
            release(effect);
        });
        effect->setSource(QUrl::fromLocalFile(m_folder + u'/' + name + QStringLiteral(".wav")));
        effect->play();
    }

private:
    // Later: it is in the middle of a signal.
    void release(const QSoundEffect *effect)
    {
        if (m_effect.get() == effect)
            m_effect.release()->deleteLater();
    }

    const QString m_folder;
    std::unique_ptr<QSoundEffect> m_effect; // while one plays
};

} // namespace

std::unique_ptr<Sounds> makeSounds(const QString &folder)
{
    return std::make_unique<EffectSounds>(folder);
}
