#pragma once

#include <QLocalServer>
#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <unistd.h>

/// The way to a window that is open on a data folder already, for a program that was started a second time.

/// What the window that is open does when it is asked for.
enum class window_answer : std::uint8_t {
    none,    ///< there is none, or it is too busy to answer
    raised,  ///< it came to the front
    opens,   ///< the same, and opens the flurn that it was given
    at_work  ///< the same, and can't take a flurn now
};

/// The name under which it listens: one for a folder, whichever way that is reached. The system forgets it
/// with the program.
QString name_of_open_window(const std::string & data_folder);

/// Listens as long as it lives, and asks `visited` when another program of that user asks for the window:
/// with the path of a flurn that is to be opened, or an empty text. Programs of other users are cut off.
class open_window {
public:
    using visit = std::function<window_answer(const std::string & flurn)>;
    open_window(const std::string & data_folder, visit visited, uid_t user = ::geteuid());

private:
    QLocalServer server;
};

/// Brings the window that is open on that data folder to the front, and hands it the flurn in that file, an
/// absolute path; an empty one is none.
window_answer ask_open_window(const std::string & data_folder, const std::string & flurn);

/// Brings a window of this program to the front: the dialog that waits for an answer, else the main window.
void raise_own_window();
