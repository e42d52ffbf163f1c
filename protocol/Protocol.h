#pragma once

#include <QString>

/// What the helper and its front-ends say to each other over the session bus: the one place where
/// the names and types are written that either end serves and calls. They are frozen: front-ends
/// and helpers of other builds know them. The types are those of RemoteMethod.
namespace Protocol {

struct Argument
{
    QStringView type; ///< empty: there is none
    QStringView name;
};

enum class Mode {
    Answered, ///< the caller waits
    Oneway,   ///< it does not; annotated so
};

struct Method
{
    QStringView name; ///< of a literal
    Argument in[3] = {};
    QStringView out = {}; ///< type of the answer; empty: none
    Mode mode = Mode::Answered;

    QString key() const { return QString::fromRawData(name.data(), name.size()); }
};

// --- The helper's object

inline constexpr QStringView helperPath = u"/CaravelHelper";
inline constexpr QStringView helperInterface = u"org.caravel.CaravelHelperProtocol";

/// The connection name of the helper of that build, see NamedConnection::busName().
inline QString helperConnection(const QString &build)
{
    return QStringLiteral("CaravelHelper ") + build;
}

/// Whoever asks for something: empty, or the "title" of the menu item that was chosen.
inline constexpr Argument sender{u"a{sv}", u"sender"};
inline constexpr Argument identifier{u"s", u"identifier"};
inline constexpr Argument identifiers{u"as", u"identifiers"};
/// A row of moviesItems.
inline constexpr Argument movie{u"a{sv}", u"movie"};

/// The object that the helper is to tell of what happens, on the caller's own connection.
inline constexpr Method setApplication{u"setApplication", {{u"o", u"frontEnd"}}};
inline constexpr Method applicationWillQuit{u"applicationWillQuit", {}, {}, Mode::Oneway};
inline constexpr Method ejectPSP{u"ejectPSP", {sender}, {}, Mode::Oneway};
inline constexpr Method openCaravel{u"openCaravel", {sender}, {}, Mode::Oneway};
/// Cancels the running sync where the sender's title is "Cancel Sync".
inline constexpr Method syncNow{u"syncNow", {sender}, {}, Mode::Oneway};

inline constexpr Method log{u"log", {}, u"s"};
inline constexpr Method isFirstSync{u"isFirstSync", {}, u"b"};
inline constexpr Method pspIsMounted{u"pspIsMounted", {}, u"b"};
inline constexpr Method canSync{u"canSync", {}, u"b"};
inline constexpr Method isSyncing{u"isSyncing", {}, u"b"};
inline constexpr Method canCancelSync{u"canCancelSync", {}, u"b"};
inline constexpr Method isIndeterminate{u"isIndeterminate", {}, u"b"};
inline constexpr Method syncBytesTotal{u"syncBytesTotal", {}, u"t"};
inline constexpr Method syncBytes{u"syncBytes", {}, u"t"};
inline constexpr Method statusText{u"statusText", {}, u"s"};
inline constexpr Method statusSubText{u"statusSubText", {}, u"s"};
inline constexpr Method setIsInteractive{u"setIsInteractive", {{u"b", u"interactive"}}};
inline constexpr Method percentConverted{u"percentConverted", {}, u"s"};
inline constexpr Method changeStartOnLogin{u"changeStartOnLogin", {}, {}, Mode::Oneway};
inline constexpr Method clearLog{u"clearLog"};

/// Of the PSP's capacity, 0 upwards.
inline constexpr Method syncPercentEstimate{u"syncPercentEstimate", {}, u"u"};
/// A text such as "1.2 GB".
inline constexpr Method syncBytesEstimate{u"syncBytesEstimate", {}, u"s"};
inline constexpr Method refreshSyncBytesEstimate{u"refreshSyncBytesEstimate", {}, {}, Mode::Oneway};

inline constexpr Method musicItems{u"musicItems", {}, u"aa{sv}"};
inline constexpr Method setSelectedMusicIdentifiers{
    u"setSelectedMusicIdentifiers", {identifiers}, {}, Mode::Oneway};
inline constexpr Method photosItems{u"photosItems", {}, u"aa{sv}"};
inline constexpr Method setSelectedPhotosIdentifiers{
    u"setSelectedPhotosIdentifiers", {identifiers}, {}, Mode::Oneway};
inline constexpr Method bookmarksItems{u"bookmarksItems", {}, u"aa{sv}"};
inline constexpr Method setSelectedBookmarksIdentifiers{
    u"setSelectedBookmarksIdentifiers", {identifiers}, {}, Mode::Oneway};

inline constexpr Method moviesItems{u"moviesItems", {}, u"aa{sv}"};
inline constexpr Method setSelectedMoviesIdentifiers{
    u"setSelectedMoviesIdentifiers", {identifiers}, {}, Mode::Oneway};
inline constexpr Method isConvertingMovie{u"isConvertingMovie", {}, u"b"};
inline constexpr Method addMoviesFromArray{u"addMoviesFromArray", {{u"as", u"paths"}}};
inline constexpr Method removeMovieItem{u"removeMovieItem", {movie}};
inline constexpr Method renameMovieItem{u"renameMovieItem", {movie, {u"s", u"newName"}}};

inline constexpr Method backupItems{u"backupItems", {}, u"aa{sv}"};
inline constexpr Method setSelectedBackupIdentifiers{
    u"setSelectedBackupIdentifiers", {identifiers}, {}, Mode::Oneway};
inline constexpr Method logChanged{u"logChanged", {{u"s", u"line"}}, {}, Mode::Oneway};
/// The backups of the game save of that identifier.
inline constexpr Method backupSubItemsForIdentifier{
    u"backupSubItemsForIdentifier", {identifier}, u"aa{sv}"};
inline constexpr Method restoreBackupWithIdentifier{u"restoreBackupWithIdentifier", {identifier}};
inline constexpr Method deleteBackupWithIdentifier{u"deleteBackupWithIdentifier", {identifier}};

/// A kind of media whose rows the user selects from; rows without "enabled" leave it to the
/// settings to tell what is selected.
struct List
{
    QStringView saveName;
    const Method &items;
    const Method &select;
    bool rowsTellSelection = true;
};

inline constexpr List lists[] = {
    {u"Music", musicItems, setSelectedMusicIdentifiers},
    {u"Photos", photosItems, setSelectedPhotosIdentifiers},
    {u"Bookmarks", bookmarksItems, setSelectedBookmarksIdentifiers},
    {u"Movies", moviesItems, setSelectedMoviesIdentifiers},
    {u"Backup", backupItems, setSelectedBackupIdentifiers, false},
};

/// Where media can come from on this computer, by kind: "kind" (its save name), "value" (of its
/// setting, "i"), "title", "place" (a path), "found" and "chosen" ("b"), "entries" (playlists,
/// albums or folders, "i"; -1 where counting them would take long or they can't be read).
inline constexpr Method sources{u"sources", {}, u"aa{sv}"};
/// The mounted stick: "name" and "volume" (texts), "capacity", "free" and "used" (bytes, "t");
/// empty without one.
inline constexpr Method stick{u"stick", {}, u"a{sv}"};

/// Has the helper work out what a sync would do now; planIsReady follows.
inline constexpr Method requestPlan{u"requestPlan", {}, {}, Mode::Oneway};
/// Of the plan that was asked for, during a run of the run's own; empty where there is none.
/// "copies", "replacements", "removals", "strangers" (of the removals and replacements those that
/// no sync placed), "inPlace" and "leftOut" ("u"); "bytesNeeded" and "bytesFreed" (in the stick's
/// clusters), "free" and "capacity" ("t"); "fits" ("b"); "kinds" ("aa{sv}"): the counts and bytes
/// of each kind with its "name", "title" and "bytes", what the whole selection takes.
inline constexpr Method planSummary{u"planSummary", {}, u"a{sv}"};
/// A page of at most 1,000 rows, in the order in which a run acts, of the kind of that save name
/// or, without one, of all: "action" ("copy", "replace", "remove", "inPlace", "leaveOut"), "path"
/// below the volume, "source", "description", "bytes" ("t"), "isStranger" ("b"), "reason".
inline constexpr Method planItems{
    u"planItems", {{u"s", u"kind"}, {u"u", u"first"}, {u"u", u"count"}}, u"aa{sv}"};

/// How the last run ended: "started" and "ended" (seconds since 1970, "d"; without the latter it
/// lasts, or was cut short), "outcome" ("complete", "incomplete", "cancelled", "disconnected",
/// "full", "tooLarge"), "copied", "replaced", "removed", "kept", "leftOut" and "missing" ("u"),
/// "copiedBytes" ("t"), "volume"; empty where there was none.
inline constexpr Method lastRunSummary{u"lastRunSummary", {}, u"a{sv}"};
/// A page of at most 1,000 rows: what was kept ("action" is "keep", "source" its copy) and left out
/// ("leaveOut"), with "path" below the volume and "reason".
inline constexpr Method lastRunItems{
    u"lastRunItems", {{u"u", u"first"}, {u"u", u"count"}}, u"aa{sv}"};

/// All of them, in the order in which the helper declares them.
inline constexpr const Method *helperMethods[] = {
    &setApplication,
    &applicationWillQuit,
    &ejectPSP,
    &openCaravel,
    &syncNow,
    &log,
    &isFirstSync,
    &pspIsMounted,
    &canSync,
    &isSyncing,
    &canCancelSync,
    &isIndeterminate,
    &syncBytesTotal,
    &syncBytes,
    &statusText,
    &statusSubText,
    &setIsInteractive,
    &percentConverted,
    &changeStartOnLogin,
    &clearLog,
    &syncPercentEstimate,
    &syncBytesEstimate,
    &refreshSyncBytesEstimate,
    &musicItems,
    &setSelectedMusicIdentifiers,
    &photosItems,
    &setSelectedPhotosIdentifiers,
    &bookmarksItems,
    &setSelectedBookmarksIdentifiers,
    &moviesItems,
    &setSelectedMoviesIdentifiers,
    &isConvertingMovie,
    &addMoviesFromArray,
    &removeMovieItem,
    &renameMovieItem,
    &backupItems,
    &setSelectedBackupIdentifiers,
    &logChanged,
    &backupSubItemsForIdentifier,
    &restoreBackupWithIdentifier,
    &deleteBackupWithIdentifier,
    &requestPlan,
    &planSummary,
    &planItems,
    &lastRunSummary,
    &lastRunItems,
    &sources,
    &stick,
};

// --- A front-end's object

namespace FrontEnd {

inline constexpr QStringView interface = u"org.caravel.CaravelFrontEnd";

/// How the object's path ends in a command that asks one question and goes: it shows no alert.
inline constexpr QStringView queryEnding = u"/Query";

/// Whether the helper is to stay for it; asked for a second at most.
inline constexpr Method isOpen{u"isOpen", {}, u"b"};
/// The style is 0 for a warning, 1 for information, 2 for what is critical.
inline constexpr Method doAlert{
    u"doAlert", {{u"s", u"title"}, {u"s", u"message"}, {u"i", u"style"}}, {}, Mode::Oneway};
inline constexpr Method updateUserInterface{u"updateUserInterface", {}, {}, Mode::Oneway};
inline constexpr Method updateSyncBytes{u"updateSyncBytes", {}, {}, Mode::Oneway};
inline constexpr Method updateSyncBytesEstimate{u"updateSyncBytesEstimate", {}, {}, Mode::Oneway};
inline constexpr Method syncDidFinish{u"syncDidFinish", {{u"b", u"completed"}}, {}, Mode::Oneway};
inline constexpr Method pspDidMount{u"pspDidMount", {}, {}, Mode::Oneway};
inline constexpr Method pspDidUnmount{u"pspDidUnmount", {}, {}, Mode::Oneway};
/// A line of the helper's log with its line feed.
inline constexpr Method writeToLog{u"writeToLog", {{u"s", u"line"}}, {}, Mode::Oneway};
inline constexpr Method reloadMoviesView{u"reloadMoviesView", {}, {}, Mode::Oneway};
inline constexpr Method startConversionAnimation{u"startConversionAnimation", {}, {}, Mode::Oneway};
inline constexpr Method stopConversionAnimation{u"stopConversionAnimation", {}, {}, Mode::Oneway};
/// Whether planSummary and planItems now answer a plan.
inline constexpr Method planIsReady{u"planIsReady", {{u"b", u"ready"}}, {}, Mode::Oneway};

/// All of them, in the order in which a front-end declares them.
inline constexpr const Method *methods[] = {
    &isOpen,
    &doAlert,
    &updateUserInterface,
    &updateSyncBytes,
    &updateSyncBytesEstimate,
    &syncDidFinish,
    &pspDidMount,
    &pspDidUnmount,
    &writeToLog,
    &reloadMoviesView,
    &startConversionAnimation,
    &stopConversionAnimation,
    &planIsReady,
};

} // namespace FrontEnd

} // namespace Protocol
