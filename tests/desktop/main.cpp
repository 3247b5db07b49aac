#include "desktop/looks/looks.h"

#include <QApplication>

#include <gtest/gtest.h>

// The application is a local: a static one crashes at exit.
int main(int count, char ** words)
{
    ::testing::InitGoogleTest(&count, words);
    QApplication application(count, words);
    apply_looks(application);
    return RUN_ALL_TESTS();
}
