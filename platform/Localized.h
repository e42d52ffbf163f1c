#pragma once

#include <QString>

/// The user's language's form of a text of ours. The key is the English text itself, which is also
/// what comes back where no translation is installed. Any thread.
QString localized(const char *englishText);
