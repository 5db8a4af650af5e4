#include "CacheFailure.h"

#include <cerrno>

bool CacheFailure::ignored(int number)
{
    switch (number) {
    case InvalidArgument:
    case DivisionByZero:
    case FileNotFound:
    case FileExists:
    case ReadPastEnd:
    case PermissionDenied:
        return true;
    default:
        return false;
    }
}

int CacheFailure::fromErrno(int error)
{
    switch (error) {
    case ENOENT:
        return FileNotFound;
    case ENOTDIR:
        return PathNotFound;
    case EACCES:
    case EPERM:
        return PermissionDenied;
    case EEXIST:
    case ENOTEMPTY:
        return FileExists;
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
        return DiskFull;
    case EROFS:
    case EISDIR:
        return PathFileAccess;
    case EINVAL:
    case ENAMETOOLONG:
        return InvalidArgument;
    default:
        return DeviceIo;
    }
}
