#include "support/platform_error.h"

#include <cerrno>
#include <cstring>

int code(const platform_error & error)
{
    return static_cast<int>(error.number);
}

std::string told(const platform_error & error)
{
    return error.path.empty() ? error.what() : std::string(error.what()) + "\n" + error.path;
}

platform_error from_system(int system_number, const std::string & path)
{
    switch (system_number) {
        case ENOENT:
            return {error_number::file_not_found, "The file or folder does not exist.", path};
        case EEXIST:
            return {error_number::file_exists, "The file exists already.", path};
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return {error_number::disk_full, "The disk is full. Make room on it and try again.", path};
        case EACCES:
        case EPERM:
        case EROFS:
            return {error_number::permission_denied, "There is no permission to write or read here.", path};
        case ENOTDIR:
            return {error_number::path_not_found, "A part of the path is not a folder.", path};
        case ENOMEM:
            return {error_number::out_of_memory, "Out of memory", path};
        default:
            return {error_number::path_access,
                    std::string("The file can't be used: ") + std::strerror(system_number), path};
    }
}
