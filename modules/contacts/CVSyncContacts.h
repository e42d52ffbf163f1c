#pragma once

#include "platform/people/AddressBook.h"
#include "sync/ModuleKind.h"

/// Puts the whole address book into "Caravel/Contacts" as one page with a small picture for each
/// contact that has one. Page and pictures are made in the support folder, which must exist, and
/// stay there: a picture is made anew only where the contact's own has changed.
class CVSyncContacts : public CVSyncModule
{
public:
    explicit CVSyncContacts(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();
    /// Everybody in the address book, in its order. Any thread; takes as long as people() of it.
    static People availableIdentifiers();

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;
    /// What can't be written is said in the system log; its item is there all the same.
    std::vector<CVSyncItem> itemsToSync() override;
};
