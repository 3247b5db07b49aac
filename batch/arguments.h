#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the command line of the batch program asks for.
struct batch_arguments {
    enum class task { make, list, dump, help, version, jobs, report };
    task wanted = task::make;
    std::vector<std::string> photos;  ///< folders, lists and files, in the order given
    std::string design;
    std::string frames;       ///< the frame set that a frame design wears
    std::string quick;        ///< style instead of a design: "block", "scattered", "matrix", "shapes"
    std::string recipe;       ///< file of a flurn that is made once more, instead of a design or a style
    std::string orientation;  ///< "portrait", "landscape", "square"; empty: the one the design was drawn for
    std::vector<std::pair<std::string, std::string>> settings;  ///< control and value, in the order given
    std::optional<std::string> caption;
    std::optional<int> size;   ///< long side in pixels
    std::optional<int> scale;  ///< pixels of the poster for one of the full size, in each direction
    std::optional<int> dpi;    ///< pixels an inch, for the file's header
    bool smooth = false;
    std::optional<unsigned long long> seed;
    std::optional<std::string> data_folder;
    std::optional<int> threads;  ///< workers beside the session's own thread
    bool preview = false;
    bool intake = false;  ///< photos that need it are prepared first
    bool answers_yes = false;
    std::string out;           ///< "-": standard output
    std::string page;          ///< paper of a PDF; empty: as large as the poster
    std::string around;        ///< of a PDF: "white" or "ground"; empty: the ground where there is a bleed
    std::optional<int> bleed;  ///< millimetres around the page of a PDF
    std::string keep;          ///< folder that the work files are left in; empty: none
    std::string jobs;          ///< job list, "-": standard input
    bool again = false;        ///< makes the jobs too whose collage is there
};

/// A command line that can't be followed; `what` says why, in one line.
struct bad_arguments {
    std::string what;
};

/// The name that stands for standard output and standard input.
inline constexpr const char * standard_stream = "-";

/// Reads the arguments behind the program's name: "--opt value" or "--opt=value". Throws bad_arguments.
batch_arguments parse_arguments(const std::vector<std::string> & words);

/// Throws bad_arguments for an option that has no place in a job list. It is named without its dashes.
void check_job_column(const std::string & name);

/// Reads the value of such an option. Throws bad_arguments.
void read_job_option(batch_arguments & read, const std::string & name, const std::string & value);

/// Throws bad_arguments when something is missing to make the collage that is asked for.
void check_complete(const batch_arguments & read);
