#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// A date as people say it, in the local time zone: "Today 09:05 PM", "Yesterday 11:30 AM",
/// "Tomorrow 08:00 AM", else "03-Mar-06 04:15 PM"; "Never" for no date. The day's word is
/// localized.
QString relativeDate(const std::optional<QDateTime> &date, const QDateTime &now);
