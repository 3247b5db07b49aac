#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int count, char ** words)
{
    const QGuiApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
