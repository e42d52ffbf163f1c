#include "app/Catalogue.h"

#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/contacts/CVSyncContacts.h"
#include "modules/movies/CVSyncMovies.h"
#include "modules/music/CVSyncMusic.h"
#include "modules/photos/CVSyncPhotos.h"
#include "modules/saves/CVSyncBackup.h"

ModuleCatalogue catalogue(const Clock &clock)
{
    return {CVSyncMusic::kind(),       CVSyncPhotos::kind(),    CVSyncMovies::kind(),
            CVSyncBackup::kind(clock), CVSyncBookmarks::kind(), CVSyncContacts::kind()};
}
