#pragma once

#include "frontend/HelperClient.h"

/// All rows that a question gives in pages, whose last two arguments are the first row and the
/// count; what is asked for comes before them. What was read until the helper failed.
QVariantList allRows(HelperClient &helper, const Protocol::Method &question,
                     const QVariantList &about = {});
