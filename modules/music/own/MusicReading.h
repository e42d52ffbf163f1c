#pragma once

#include "modules/music/MusicLibrary.h"

#include <QSet>

#include <functional>

/// What is asked of a reader of music.
struct MusicReading
{
    MusicLibrary::Part part = MusicLibrary::Part::PlaylistsOnly;
    /// Of the playlists whose tracks are needed, with Part::Everything; others have none.
    QSet<QString> selected = {};
    /// Asked between steps that can be felt; true ends the reading with what there is by then.
    std::function<bool()> shouldStop = [] {
        return false;
    };
    /// Told how many of so many files have been read.
    std::function<void(int done, int total)> progress = [](int, int) {
    };

    bool needsTracksOf(const MusicLibrary::Playlist &playlist) const
    {
        const auto identifier = playlist.identifier();
        return part == MusicLibrary::Part::Everything && identifier &&
               selected.contains(*identifier);
    }
};
