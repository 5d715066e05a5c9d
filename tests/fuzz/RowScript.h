#pragma once

#include <cstddef>
#include <cstdint>

class RawDatabase;

/// Changes the rows of a scheme file as the bytes say: any bytes are a script. Rows of any of the ten tables
/// are added, changed and deleted, with values of every type; tables and indexes may be lost.
void RunRowScript(RawDatabase& database, const uint8_t* pScript, size_t iSize);
