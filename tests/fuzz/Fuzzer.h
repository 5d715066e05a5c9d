#pragma once

#include <QByteArray>
#include <QList>

#include <cstddef>
#include <cstdint>

// What a fuzzer consists of. The tool that makes up inputs calls the first; where it is not built, a test of
// the suite hands over the seeds and the inputs that were found to do harm.

/// Uses one input; ends the process when it does harm. Always 0.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t iSize);

/// Inputs to begin with, small and unlike each other.
QList<QByteArray> FuzzSeeds();
