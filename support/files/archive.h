#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What may come out of one archive.
struct unpack_limits {
    int entries = 4000;
    std::int64_t bytes = std::int64_t{512} << 20;
};

/// Who sees to it that the disk has what was unpacked: the unpacking, file by file, or its caller, by
/// `flush_below`.
enum class unpack_flush { each_file, by_caller };

/// How an unpacking ended. An entry that is not allowed ends it; what was unpacked before stays.
struct unpacking {
    enum class end {
        whole,        ///< all went through
        broken,       ///< damaged, or no archive
        not_allowed,  ///< `entry` would leave the folder, is a link or a device, or comes twice
        too_many,     ///< `entry` is one more than the limit
        too_large     ///< `entry` is beyond the limit of bytes
    };
    end ended = end::whole;
    std::string entry;
};

/// Unpacks all files of the zip archive `source` into the folder `destination`, overwriting. Nothing is
/// written anywhere else, whatever the names of the entries say. Names are bytes, UTF-8 where the archive
/// says so, in every locale. Raises 61, 70, 75, 76 where the folder can't be written.
unpacking unpack_zip(const std::string & source, const std::string & destination,
                     const unpack_limits & limits = {}, unpack_flush flush = unpack_flush::each_file);

/// The same; true when all went through, false whatever went wrong.
bool extract_zip(const std::string & source, const std::string & destination,
                 unpack_flush flush = unpack_flush::each_file);

/// A file for an archive.
struct archived_file {
    std::string name, bytes;
};

/// A zip archive of these files, as bytes; the same files give the same bytes. Raises 5 when the archive
/// can't be made.
std::string zip_bytes(const std::vector<archived_file> & files);
