#pragma once

#include <QtGlobal>

// Resident memory, in kilobytes, of this process and of all the processes
// it started (the browser engine's helpers among them).
namespace ProcessMemory {
qint64 selfKb();
qint64 withChildrenKb();
} // namespace ProcessMemory
