#include "window/SearchField.h"

#include "platform/core/Localized.h"

#include <QToolButton>

SearchField::SearchField(QWidget *parent)
    : QLineEdit(parent)
{
    setPlaceholderText(localized("Search"));
    setAccessibleName(localized("Search"));
    setClearButtonEnabled(true);
    for (QToolButton *const clearing : findChildren<QToolButton *>()) {
        clearing->setAccessibleName(localized("Clear"));
        clearing->setAccessibleDescription(localized("Empties the search."));
    }
}
