#pragma once

#include "platform/files/FileError.h"

#include <QVariantMap>

/// A failure as the manager's delegate is told of it: "Error" (what could not be done), "Path" and,
/// where the system gave one, "Reason" (its own text); "Operation" is the number of the
/// FileError::Operation, so that nobody has to compare texts.
using ErrorInfo = QVariantMap;

ErrorInfo errorInfo(const FileError &error);

/// The failure that the dictionary was made of, but for the system's number.
FileError fileError(const ErrorInfo &info);
