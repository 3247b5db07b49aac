#include "desktop/opener.h"

#include "../temporary_folder.h"

#include <QDesktopServices>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A desktop whose opener is this script, as long as it lives.
struct with_opener {
    explicit with_opener(const std::string & script) : before(qgetenv("PATH"))
    {
        const QString path =
            QString::fromStdString(folder.write("bin/xdg-open", "#!/bin/sh\n" + script + "\n"));
        QFile(path).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QByteArray::fromStdString(folder.at("bin")) + ":" + before);
    }
    ~with_opener() { qputenv("PATH", before); }

    temporary_folder folder;
    QByteArray before;
};

const QUrl page(QStringLiteral("file:///a page.htm"));

TEST(opener, gets_the_address_of_what_is_to_be_opened)
{
    const temporary_folder folder;
    const std::string told = folder.at("told");
    const with_opener desktop("printf %s \"$1\" > '" + told + "'");
    EXPECT_TRUE(opened_by_desktop(page));
    QFile file(QString::fromStdString(told));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), "file:///a%20page.htm");
}

TEST(opener, that_finds_no_program_says_so)
{
    const with_opener desktop("exit 3");
    EXPECT_FALSE(opened_by_desktop(page));
}

TEST(opener, that_stays_with_what_it_opened_is_not_waited_for)
{
    const temporary_folder folder;
    const with_opener desktop("i=0; while ! [ -e '" + folder.at("end") +
                              "' ] && [ $i -lt 500 ]; do sleep 0.01; i=$((i + 1)); done");
    EXPECT_TRUE(opened_by_desktop(page));
    folder.write("end", "");
}

}  // namespace
