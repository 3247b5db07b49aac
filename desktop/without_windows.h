#pragma once

#include <memory>
#include <string>

class QCoreApplication;

/// What a program that has no windows takes from the toolkit.

/// The application that the toolkit's folders need: there as long as this is. `words` has to outlive it.
class windowless_application {
public:
    explicit windowless_application(char ** words);
    windowless_application(const windowless_application &) = delete;
    windowless_application & operator=(const windowless_application &) = delete;
    ~windowless_application();

private:
    int only_the_name = 1;
    std::unique_ptr<QCoreApplication> application;
};

/// "Qt 6.4.2", as it is loaded.
std::string toolkit_version();

/// The system and the machine in one line: product, kernel, processor.
std::string system_in_words();

/// The family with which captions begin. Needs the toolkit's fonts.
std::string first_caption_family();
