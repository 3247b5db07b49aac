#include "desktop/qt_desktop.h"

#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "desktop/drop_zone.h"
#include "desktop/file_filter.h"
#include "desktop/opener.h"
#include "desktop/printing/printing.h"
#include "desktop/program_folders.h"
#include "desktop/qt_text.h"
#include "desktop/save_chooser.h"
#include "desktop/text_drawing.h"
#include "support/files/paths.h"
#include "support/for_now.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace {

constexpr int text_air = 4;  // pixels beside a line

QString toolkit_path(const std::string & path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string path_bytes(const QString & path)
{
    return QFile::encodeName(path).toStdString();
}

// A line that the session breaks itself isn't broken once more where the screen has room for it.
void keep_lines(QMessageBox & box)
{
    auto * const label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!label)
        return;
    const int widest = label->fontMetrics().size(0, box.text()).width();
    label->setMinimumWidth(std::min(widest, box.screen()->availableSize().width() * 3 / 5) + 2 * text_air);
}

void prepare_box(QMessageBox & box, const std::string & title, const std::string & text)
{
    box.setWindowTitle(title.empty() ? QStringLiteral("Tessaloom") : shown(title));
    box.setAccessibleName(unspaced(box.windowTitle()));
    box.setTextFormat(Qt::PlainText);
    box.setText(shown(text).remove(QLatin1Char('\r')));
    keep_lines(box);
}

// As the buttons of the program's windows are spelt.
void spell_ok(const QDialogButtonBox * buttons)
{
    if (QPushButton * const ok = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr)
        ok->setText(QStringLiteral("&Ok"));
}

// What a window's frame takes of the screen, before it is known.
constexpr QSize usual_frame{8, 36};

QSize room_for(const QWidget & window)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    return window.screen()->availableSize() - (frame.isNull() ? usual_frame : frame);
}

// What the toolkit's chooser doesn't tell readers of the screen.
void name_parts(QFileDialog & chooser)
{
    for (const char * list : {"lookIn", "fileType"})
        if (auto * const label = chooser.findChild<QLabel *>(QLatin1String(list) + QLatin1String("Label")))
            label->setBuddy(chooser.findChild<QWidget *>(QLatin1String(list) + QLatin1String("Combo")));
    const std::pair<const char *, const char *> names[] = {
        {"sidebar", "Places"}, {"listView", "Files"}, {"treeView", "Files with details"}};
    for (const auto & [part, name] : names)
        if (auto * const view = chooser.findChild<QWidget *>(QLatin1String(part)))
            view->setAccessibleName(QLatin1String(name));
}

// A question that comes up in the midst of work is answered with an arrow, not with an hourglass.
auto with_arrow()
{
    const bool is_needed = QApplication::overrideCursor() != nullptr;
    if (is_needed)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    return afterwards([is_needed] {
        if (is_needed)
            QApplication::restoreOverrideCursor();
    });
}

}  // namespace

qt_desktop::~qt_desktop()
{
    forget_windows();
}

void qt_desktop::message(const std::string & text, const std::string & title)
{
    const auto usable = with_arrow();
    QMessageBox box(owner());
    prepare_box(box, title, text);
    box.setStandardButtons(QMessageBox::Ok);
    spell_ok(box.findChild<QDialogButtonBox *>());
    box.exec();
}

answer qt_desktop::ask(const question & asked)
{
    const auto usable = with_arrow();
    QMessageBox box(owner());
    prepare_box(box, asked.title, asked.text);
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    if (asked.offered == answers::yes_no_cancel)
        box.addButton(QMessageBox::Cancel);
    // Else the keyboard stands on the button at the left.
    box.setDefaultButton(asked.on_enter == answer::yes ? QMessageBox::Yes : QMessageBox::No);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return answer::yes;
        case QMessageBox::No:
            return answer::no;
        default:
            return answer::cancel;
    }
}

// Boxes, choosers and windows belong to the dialog that waits, else to the main window. A dialog on its way
// out owns nothing more, and one that doesn't wait owns nothing: what it owned would go with it.
QWidget * qt_desktop::owner() const
{
    QWidget * const waiting = QApplication::activeModalWidget();
    const bool stays = std::none_of(windows.begin(), windows.end(), [&](const auto & each) {
        return each.second.widget == waiting && !each.second.modal_loop;
    });
    if (waiting && waiting->isVisible() && stays)
        return waiting;
    for (const auto & [its_form, entry] : windows)
        if (qobject_cast<QMainWindow *>(entry.widget))
            return entry.widget;
    return nullptr;
}

QWidget & qt_desktop::made(form & window)
{
    if (QWidget * const there = window_of(window))
        return *there;
    std::unique_ptr<QWidget> widget = make_window(window.name(), owner());
    if (!widget)
        throw std::logic_error("no Designer file for " + window.name());
    bind(window, *widget,
         {.report = [this](const std::string & text) { message(text, {}); },
          .unloaded = [this, &window] { taken_down(window); },
          .room = [its_widget = widget.get()] { return room_for(*its_widget); }});
    if (const auto target = drops.find(&window); target != drops.end())
        take_drops(*widget, target->second, [this](const std::string & text) { message(text, {}); });
    windows[&window].widget = widget.get();
    return *widget.release();
}

// The window is there before its form is loaded, so that a picture which the load handler deletes has been
// seen. A form whose load handler failed isn't open.
QWidget & qt_desktop::loaded(form & window)
{
    QWidget & widget = made(window);
    try {
        window.load();
    } catch (...) {
        window.unload();
        throw;
    }
    return widget;
}

void qt_desktop::show(form & window)
{
    QWidget & widget = loaded(window);
    if (window.loaded())
        widget.show();
}

void qt_desktop::hide(form & window)
{
    window.unload();
}

void qt_desktop::show_modal(form & window)
{
    QWidget & widget = loaded(window);
    if (!window.loaded())
        return;
    const auto usable = with_arrow();
    QEventLoop loop;
    windows[&window].modal_loop = &loop;
    widget.setWindowModality(Qt::ApplicationModal);
    widget.show();
    loop.exec();
    window.unload();  // still loaded when the whole program has been ended meanwhile
}

// The window may be in the midst of the event that took it down, so it goes later.
void qt_desktop::taken_down(const form & window)
{
    const auto found = windows.find(&window);
    if (found == windows.end())
        return;
    if (found->second.modal_loop)
        found->second.modal_loop->quit();
    if (QWidget * const widget = found->second.widget) {
        widget->hide();
        widget->deleteLater();
    }
    windows.erase(found);
    if (is_running && windows.empty())
        QCoreApplication::quit();
}

void qt_desktop::pump()
{
    QCoreApplication::processEvents();
}

void qt_desktop::breathe_alone()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void qt_desktop::busy_pointer(bool on)
{
    busy_depth = std::max(0, busy_depth + (on ? 1 : -1));
    if (on && busy_depth == 1)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!on && busy_depth == 0)
        QApplication::restoreOverrideCursor();
}

QString qt_desktop::folder_to_open(const std::string & wanted) const
{
    for (const std::string & folder : {wanted, last_folder})
        if (!folder.empty() && folder_exists(folder))
            return toolkit_path(folder);
    return toolkit_path(pictures_folder());
}

bool qt_desktop::is_accepted(QFileDialog & chooser, const file_request & asked)
{
    name_parts(chooser);
    chooser.setWindowTitle(shown(asked.title));
    chooser.setDirectory(folder_to_open(asked.folder));
    if (!asked.filter.empty())
        chooser.setNameFilters(toolkit_filter(asked.filter).split(QStringLiteral(";;")));
    const auto usable = with_arrow();
    if (chooser.exec() != QDialog::Accepted)
        return false;
    last_folder = path_bytes(chooser.directory().absolutePath());
    return true;
}

std::vector<std::string> qt_desktop::chosen(open_chooser & chooser, const file_request & asked)
{
    if (!is_accepted(chooser, asked))
        return {};
    std::vector<std::string> paths;
    for (const QString & path : chooser.paths())
        paths.push_back(with_platform_separators(path_bytes(path)));
    return paths;
}

std::optional<std::string> qt_desktop::choose_folder(const std::string & title)
{
    open_chooser chooser(owner());
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    file_request asked;
    asked.title = title;
    const std::vector<std::string> paths = chosen(chooser, asked);
    return paths.empty() ? std::nullopt : std::optional(paths.front());
}

std::vector<std::string> qt_desktop::choose_files(const file_request & asked)
{
    open_chooser chooser(owner());
    chooser.setFileMode(QFileDialog::ExistingFiles);
    return chosen(chooser, asked);
}

std::optional<std::string> qt_desktop::choose_file(const file_request & asked)
{
    open_chooser chooser(owner());
    chooser.setFileMode(QFileDialog::ExistingFile);
    const std::vector<std::string> paths = chosen(chooser, asked);
    return paths.empty() ? std::nullopt : std::optional(paths.front());
}

std::optional<std::string> qt_desktop::choose_save(const file_request & asked)
{
    save_chooser chooser(owner(), shown(asked.extension), shown(asked.name));
    if (!is_accepted(chooser, asked))
        return std::nullopt;
    return path_bytes(chooser.path());
}

std::optional<std::uint32_t> qt_desktop::choose_color(std::uint32_t initial)
{
    QColorDialog chooser(shown_color(initial), owner());
    spell_ok(chooser.findChild<QDialogButtonBox *>());
    if (chooser.exec() != QDialog::Accepted)
        return std::nullopt;
    return control_color(chooser.selectedColor());
}

bool qt_desktop::open_document(const std::string & target)
{
    const bool is_file = file_exists(target) || folder_exists(target);
    return opened_by_desktop(is_file ? QUrl::fromLocalFile(toolkit_path(target)) : QUrl(shown(target)));
}

print_report qt_desktop::print(const bitmap & image, orientation page)
{
    return print_by_dialog(*this, printer(), image, page, owner());
}

// A window fills the screen to nine tenths, which leaves room for its frame.
picture_size qt_desktop::screen_room()
{
    const QWidget * const shown_over = owner();
    const QScreen * const screen = shown_over ? shown_over->screen() : QGuiApplication::primaryScreen();
    const QSize room = screen->availableSize() * 9 / 10;
    return {.width = room.width(), .height = room.height()};
}

std::vector<std::string> qt_desktop::font_names()
{
    return installed_fonts();
}

bitmap qt_desktop::draw_text(const text_request & request)
{
    return drawn_text(request);
}

picture_size qt_desktop::text_size(const text_request & request)
{
    return size_of_text(request);
}

int qt_desktop::run()
{
    if (windows.empty())
        return 0;
    is_running = true;
    const int status = QApplication::exec();
    is_running = false;
    return status;
}

void qt_desktop::forget_windows()
{
    for (auto & [window, entry] : windows)
        delete entry.widget;
    windows.clear();
}

QWidget * qt_desktop::window_of(const form & its_form) const
{
    const auto found = windows.find(&its_form);
    return found == windows.end() ? nullptr : found->second.widget.data();
}
