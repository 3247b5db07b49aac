#pragma once

#include <fstream>
#include <string>
#include <string_view>
#include <vector>

/// The one place that opens text files. A line is bytes, without its end; CR LF is written, CR LF and LF are
/// read.

/// A text read line by line, from a file or from bytes at hand.
class line_source {
public:
    /// A source without lines.
    line_source() = default;
    /// Opens the file. Raises file_not_found (53), permission_denied (70), path_access (75) for a folder.
    explicit line_source(const std::string & path);
    /// A source over bytes that are at hand.
    static line_source of_text(std::string text);

    /// True when no line is left. The last line counts whether or not it has a line end.
    bool at_end() const { return position >= bytes.size(); }
    /// The next line. Raises past_end_of_file (62) when none is left.
    std::string read_line();

private:
    std::string bytes;
    std::string source_path;
    std::size_t position = 0;
};

/// A text written line by line. What was written so far reaches the file by `close`, which the destructor
/// does without a word when a step in between has failed.
class line_writer {
public:
    enum class mode { fresh, append };
    /// Opens the file, making it when missing. What is appended begins a line of its own, even behind a last
    /// line without an end. Raises 70, 75, 76.
    line_writer(const std::string & path, mode opened);
    line_writer(const line_writer &) = delete;
    line_writer & operator=(const line_writer &) = delete;
    ~line_writer() = default;

    /// Adds the line and CR LF. Raises disk_full (61).
    void write_line(std::string_view line);
    /// Flushes and closes. Raises disk_full (61).
    void close();

private:
    std::ofstream file;
    std::string target;
};

/// All bytes of a file. Raises 53, 70, 75.
std::string read_file(const std::string & path);

/// Ends the name of a file that is being written beside the one it will replace. What stands in front of it
/// is the other's name and something that no two writers share.
inline constexpr std::string_view part_ending = ".part";

/// Removes from a folder what programs that were killed left under construction there for more than a minute.
/// Raises nothing: what can't be removed stays.
void remove_abandoned_parts(const std::string & folder);

/// Removes what this program has under construction, for a program that ends right behind it: from then on no
/// thread of it begins or ends another file.
void remove_unfinished_files();

/// Puts `bytes` at `path` in one step: written beside it, flushed to the disk and renamed over it, so that a
/// crash at any instant leaves the old or the new file, whole. The rights of the old file are kept. Raises
/// 61, 70 (for a write-protected file too), 75, 76; the old file then stands as it was and nothing is left
/// beside it.
void replace_file(const std::string & path, std::string_view bytes);

/// The same for what can be made again (previews, thumbnails, generated templates): whole or not there as
/// well, but it isn't waited for until the disk has it.
void write_file(const std::string & path, std::string_view bytes);

/// Waits until the disk has all that was written below a folder: one flush instead of two for each file.
/// Raises 61, 70, 75, 76.
void flush_below(const std::string & folder);

/// Gives a whole file another name, in one step and for good; a file of that name is replaced. Raises 53, 70,
/// 75, 76.
void move_file(const std::string & from, const std::string & to);

/// All lines of a text.
std::vector<std::string> lines_of_text(std::string text);

/// All lines of a file. Raises 53, 70, 75.
std::vector<std::string> lines_of_file(const std::string & path);

/// The lines joined with CR LF, one behind each.
std::string text_of(const std::vector<std::string> & lines);

/// At most `limit` fields of the text between `sign`s; the last one keeps any further signs. An empty text
/// has one empty field.
std::vector<std::string> split(std::string_view text, char sign, std::size_t limit);

/// The field at `index`. Raises subscript (9) when there is none.
const std::string & field_at(const std::vector<std::string> & fields, std::size_t index);
