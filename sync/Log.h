#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcSync)
/// For what the kinds of media have to say.
Q_DECLARE_LOGGING_CATEGORY(lcModules)
