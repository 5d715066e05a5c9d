#pragma once

#include "client/store/AlarmSchemeStoreBackend.h"
#include "tests/client_store/SaveAndWait.h"

#include <QList>

/// One client: its store and the schemes that its page shows.
struct StoreClient
{
    AlarmSchemeStoreBackend store;
    AlarmInfoMap map;
    QList<SchemeStoreOutcome> saves;
    QList<SchemeConflict> questions;
    SchemeConflictAnswer answer = SchemeConflictAnswer::Cancel;
    int iReloads = 0;

    StoreClient()
    {
        store.SetOutcomeHandler([this](const SchemeStoreOutcome& outcome) {
            if (outcome.eOperation == SchemeStoreOutcome::Operation::Save)
                saves.append(outcome);
        });
        store.SetConflictHandler([this](const SchemeConflict& conflict) {
            questions.append(conflict);
            return answer;
        });
        store.SetReloadHandler([this] {
            ++iReloads;
            Load();
        });
        Load();
    }
    void Load()
    {
        if (store.Load(map) != 0)
            qFatal("the schemes cannot be loaded");
    }
    int Save() { return SaveAndWait(store, map); }
};
