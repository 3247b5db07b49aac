// Prints on the printers of print_server.py and measures the sheets that they got.

#include "desktop/printing/print_dialog.h"
#include "desktop/printing/print_page.h"
#include "desktop/printing/printing.h"
#include "desktop/qt_desktop.h"
#include "desktop/qt_picture.h"
#include "tests/pictures.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <cups/cups.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

constexpr double near_enough = 2;  // points
constexpr int wait = 60'000;       // milliseconds, for a machine under load

// As print_server.py has them: paper and its printer's margins in points, the sheet upright.
struct paper {
    const char * queue;
    double width, height, left, bottom, right, top;
};

constexpr paper papers[] = {{"paper_a4", 595, 842, 12, 36, 18, 24},
                            {"paper_letter", 612, 792, 18, 48, 12, 12},
                            {"paper_a3", 842, 1191, 10, 30, 20, 40},
                            {"paper_photo", 288, 432, 9, 27, 9, 9},
                            {"paper_a5", 420, 595, 24, 12, 36, 48}};

QString printed_file(const std::string & queue)
{
    return qEnvironmentVariable("PRINTED") + QStringLiteral("/%1.pdf").arg(QString::fromStdString(queue));
}

print_report carried_out(const print_choice & choice, const QImage & picture)
{
    qt_desktop desk;
    return carry_out(desk, choice, picture);
}

print_choice usual_choice(const std::string & queue, QPageLayout::Orientation lies)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(queue));
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageSize(info.defaultPageSize());
    printer.setPageOrientation(lies);
    return {.queue = queue,
            .file = {},
            .page = printer_page(printer),
            .options = {{"media", printer.pageLayout().pageSize().key().toStdString()},
                        {"print-scaling", "none"}}};
}

// The sheet as the printer got it, a pixel a point.
struct sheet {
    QImage image;
    int pages = 0;

    QRect picture() const  // what isn't white
    {
        QRect found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 200)
                    found = found.united(QRect(x, y, 1, 1));
        return found;
    }
};

sheet printed_sheet(const std::string & queue)
{
    const QString file = printed_file(queue);
    const QTemporaryDir folder;
    EXPECT_EQ(QProcess::execute(QStringLiteral("pdftoppm"),
                                {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-png"), file,
                                 folder.filePath("page")}),
              0);
    const QDir pages(folder.path(), QStringLiteral("*.png"));
    const QStringList names = pages.entryList();
    return {.image = names.isEmpty() ? QImage() : QImage(pages.filePath(names.front())),
            .pages = static_cast<int>(names.size())};
}

QByteArray told(const char * program, const QStringList & words)
{
    QProcess asked;
    asked.start(QString::fromLatin1(program), words);
    asked.waitForFinished();
    return asked.readAllStandardOutput();
}

bool is_through(const std::string & queue)
{
    return QTest::qWaitFor(
        [&queue] {
            return !told("lpstat", {QStringLiteral("-o"), QString::fromStdString(queue)})
                        .contains(queue.c_str());
        },
        wait);
}

struct collage {
    int width, height;
    QPageLayout::Orientation lies;
};

constexpr collage collages[] = {
    {200, 300, QPageLayout::Portrait}, {300, 200, QPageLayout::Landscape}, {200, 200, QPageLayout::Portrait}};

void expect_inside(const QRect & picture, const paper & on)
{
    EXPECT_GE(picture.left(), on.left - near_enough);
    EXPECT_GE(picture.top(), on.top - near_enough);
    EXPECT_LE(picture.right() + 1, on.width - on.right + near_enough);
    EXPECT_LE(picture.bottom() + 1, on.height - on.bottom + near_enough);
    EXPECT_NEAR(picture.center().x(), on.width / 2, near_enough);
    EXPECT_NEAR(picture.center().y(), on.height / 2, near_enough);
}

TEST(printers, each_gets_one_sheet_of_its_own_paper_with_the_whole_picture_inside_its_margins)
{
    for (const paper & on : papers)
        for (const collage & made : collages) {
            SCOPED_TRACE(std::string(on.queue) + " " + std::to_string(made.width));
            const print_report report = carried_out(usual_choice(on.queue, made.lies),
                                                    image_of(plain(made.width, made.height, {.red = 80})));
            ASSERT_EQ(report.result, print_result::sent) << report.why;
            ASSERT_TRUE(is_through(on.queue));
            const sheet got = printed_sheet(on.queue);
            EXPECT_EQ(got.pages, 1);
            const bool lies = got.image.width() > got.image.height();
            EXPECT_NEAR(got.image.width(), lies ? on.height : on.width, near_enough);
            EXPECT_NEAR(got.image.height(), lies ? on.width : on.height, near_enough);
            const QRect picture = lies ? got.picture().transposed() : got.picture();
            ASSERT_FALSE(lies) << "the printer turns the sheet upright";
            expect_inside(picture, on);
            const double proportion =
                1.0 * std::max(made.width, made.height) / std::min(made.width, made.height);
            EXPECT_NEAR(1.0 * picture.height() / picture.width(), proportion, 0.02);
        }
}

TEST(printers, a_job_has_a_title)
{
    const print_report report =
        carried_out(usual_choice("stands_still", QPageLayout::Portrait), image_of(plain(20, 30, {})));
    EXPECT_EQ(report.result, print_result::held);
    EXPECT_EQ(report.where, "stands_still");
    cups_job_t * jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, "stands_still", 0, CUPS_WHICHJOBS_ACTIVE);
    ASSERT_EQ(count, 1);
    EXPECT_STREQ(jobs[0].title, "Tessaloom Flurn");
    cupsFreeJobs(count, jobs);
}

TEST(printers, one_that_takes_no_jobs_fails_in_words)
{
    const print_report report =
        carried_out(usual_choice("takes_nothing", QPageLayout::Portrait), image_of(plain(20, 30, {})));
    EXPECT_EQ(report.result, print_result::failed);
    EXPECT_EQ(report.where, "takes_nothing");
    EXPECT_NE(report.why, "");
}

TEST(printers, one_that_is_gone_fails_in_words)
{
    print_choice choice = usual_choice("paper_a4", QPageLayout::Portrait);
    choice.queue = "was_here";
    const print_report report = carried_out(choice, image_of(plain(20, 30, {})));
    EXPECT_EQ(report.result, print_result::failed);
    EXPECT_EQ(report.where, "was_here");
    EXPECT_NE(report.why, "");
}

// A file that may not grow stands for a full disk.
TEST(printers, a_full_temporary_folder_is_named_and_nothing_is_printed)
{
    QFile::remove(printed_file("paper_a4"));
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto former = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 1000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const print_report report =
        carried_out(usual_choice("paper_a4", QPageLayout::Portrait), image_of(graded(200, 300)));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, former);
    EXPECT_EQ(report.result, print_result::failed);
    EXPECT_EQ(report.where, QDir::tempPath().toStdString());
    EXPECT_NE(report.why, "");
    EXPECT_FALSE(QFile::exists(printed_file("paper_a4")));
}

TEST(printers, without_a_default_one_of_them_is_offered)
{
    EXPECT_TRUE(QPrinterInfo::defaultPrinter().isNull());
    EXPECT_FALSE(first_printer().isNull());
}

// ---- the dialogs

// Acts on the window that is on top, once it is there; a dialog that an act opens runs inside the act.
template <typename Window>
void once_open(std::function<void(Window &)> act)
{
    QTimer::singleShot(20, [act] {
        if (auto * const open = qobject_cast<Window *>(QApplication::activeModalWidget()))
            act(*open);
        else
            once_open<Window>(act);
    });
}

std::optional<print_choice> chosen(const char * queue, std::function<void(QPrintPreviewDialog &)> act)
{
    once_open<QPrintPreviewDialog>(std::move(act));
    return choose_print(QPrinterInfo::printerInfo(QString::fromLatin1(queue)),
                        image_of(plain(300, 200, {.red = 80})), QPageLayout::Landscape, nullptr);
}

void press_print(QPrintPreviewDialog & preview)
{
    for (QAction * each : preview.findChildren<QAction *>())
        if (each->text() == QStringLiteral("Print"))
            each->trigger();
}

TEST(print_dialog, offers_the_printer_s_own_paper_and_gives_what_was_taken)
{
    const auto choice = chosen("paper_letter", [](QPrintPreviewDialog & preview) {
        once_open<QPrintDialog>([](QPrintDialog & dialog) {
            dialog.findChild<QSpinBox *>(QStringLiteral("copies"))->setValue(3);
            dialog.accept();
        });
        press_print(preview);
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->queue, "paper_letter");
    EXPECT_EQ(choice->page.pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(choice->page.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(choice->options.at("media"), "Letter");
    EXPECT_EQ(choice->options.at("copies"), "3");
    EXPECT_EQ(choice->page.margins(QPageLayout::Point).left(), 48);
    EXPECT_EQ(choice->page.margins(QPageLayout::Point).top(), 18);
}

TEST(print_dialog, another_printer_prints_on_its_own_paper)
{
    const auto choice = chosen("paper_letter", [](QPrintPreviewDialog & preview) {
        once_open<QPrintDialog>([](QPrintDialog & dialog) {
            auto * const printers = dialog.findChild<QComboBox *>(QStringLiteral("printers"));
            printers->setCurrentIndex(printers->findText(QStringLiteral("paper_a5")));
            dialog.accept();
        });
        press_print(preview);
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->queue, "paper_a5");
    EXPECT_EQ(choice->options.at("media"), "A5");
    EXPECT_EQ(choice->page.margins(QPageLayout::Point).left(), 48);
}

TEST(print_dialog, a_file_can_be_written_instead)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    const auto choice = chosen("paper_a4", [&path](QPrintPreviewDialog & preview) {
        once_open<QPrintDialog>([&path](QPrintDialog & dialog) {
            auto * const printers = dialog.findChild<QComboBox *>(QStringLiteral("printers"));
            printers->setCurrentIndex(printers->findText(QStringLiteral("PDF"), Qt::MatchContains));
            dialog.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(path);
            dialog.accept();
        });
        press_print(preview);
    });
    ASSERT_TRUE(choice);
    const print_report report = carried_out(*choice, image_of(plain(30, 20, {})));
    EXPECT_EQ(report.result, print_result::written) << report.why;
    EXPECT_EQ(report.where, path.toStdString());
    EXPECT_TRUE(QFile::exists(path));
}

TEST(print_dialog, goes_back_to_the_preview_when_the_user_gives_up_in_the_system_s_dialog)
{
    const auto choice = chosen("paper_a4", [](QPrintPreviewDialog & preview) {
        once_open<QPrintDialog>([](QPrintDialog & dialog) { dialog.reject(); });
        press_print(preview);
        EXPECT_TRUE(preview.isVisible());
        preview.reject();
    });
    EXPECT_FALSE(choice);
}

}  // namespace

int main(int count, char ** words)
{
    ::testing::InitGoogleTest(&count, words);
    const QApplication application(count, words);
    return RUN_ALL_TESTS();
}
