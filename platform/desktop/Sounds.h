#pragma once

#include <QString>

#include <memory>

/// Plays short sounds. Main thread.
class Sounds
{
public:
    virtual ~Sounds() = default;

    /// Plays the resource of that name and returns at once; it takes the place of one that is still
    /// playing. One that can't be played is passed over, with a line in the system log.
    virtual void play(const QString &name) = 0;
};

/// The sounds "NAME.wav" in that folder, through the desktop's sound system.
std::unique_ptr<Sounds> makeSounds(const QString &folder);
