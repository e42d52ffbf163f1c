#pragma once

#include <QString>

/// The user's language's form of a text of ours. The key is the English text itself, which is also
/// what comes back where no translation is installed. Any thread.
QString localized(const char *englishText);

/// Takes the catalogue "caravel_<language>.qm" of the user's language from the folder, and the
/// toolkit's own texts where they are installed; stays English where there is none. Once, on the
/// main thread, after the application was made.
void installTranslations(const QString &folder);

/// Whether the text is what localized() makes of `englishText` in any language whose catalogue lies
/// in the folder: for the texts of another process, which may speak another language than this one.
bool isLocalizedForm(const QString &text, const char *englishText, const QString &folder);
