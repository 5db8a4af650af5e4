#pragma once

// The run-time error numbers of a cache action. The action's one error rule
// lets six of them pass and counts every other one; the third counted
// failure ends the run.
namespace CacheFailure {

enum Number
{
    InvalidArgument = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    BadFileNumber = 52, // a write to an output that never opened
    FileNotFound = 53,
    DeviceIo = 57,
    FileExists = 58,
    DiskFull = 61,
    ReadPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ProgressOverflow = 340 // a progress label past the last one
};

bool ignored(int number);

// The number a failed system call stands for, by its errno: a missing file
// is "file not found" (53), a path through something that is no folder
// "path not found" (76), a refused access "permission denied" (70), a name taken "file
// already exists" (58), a full disk or a file over the size limit "disk
// full" (61), a read-only file system or a folder where a file was wanted
// "path/file access error" (75); anything else is a device I/O error (57).
int fromErrno(int error);

} // namespace CacheFailure
