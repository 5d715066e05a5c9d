#pragma once

#include "client/store/AlarmSchemeStoreBackend.h"

/// Saves and waits for the outcome: 0 when everything was written.
inline int SaveAndWait(AlarmSchemeStoreBackend& backend, const AlarmInfoMap& map)
{
    if (backend.Save(map) != 0)
        return -1;
    backend.WaitForSaves();
    return backend.LastOutcome().IsSuccess() ? 0 : -1;
}

/// Saves as a client does that has just begun: nothing is saved before something was loaded.
inline int LoadAndSave(AlarmSchemeStoreBackend& backend, const AlarmInfoMap& map)
{
    AlarmInfoMap loaded;
    return backend.Load(loaded) == 0 ? SaveAndWait(backend, map) : -1;
}
