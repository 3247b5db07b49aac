#pragma once

#include <QLocalServer>

#include <functional>
#include <string>

/// The way to a window that is open on a data folder already, for a program that was started a second time.

/// Listens as long as it lives, and calls `raise` when another program of the same user asks for the window.
class open_window {
public:
    open_window(const std::string & data_folder, std::function<void()> raise);

private:
    QLocalServer server;
};

/// Brings the window that is open on that data folder to the front. False when none answers.
bool raise_open_window(const std::string & data_folder);

/// Brings a window of this program to the front: the dialog that waits for an answer, else the main window.
void raise_own_window();
