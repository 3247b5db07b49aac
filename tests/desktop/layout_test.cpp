#include "../scripted_desktop.h"
#include "desktop/binder.h"
#include "desktop/captions.h"
#include "desktop/elided_label.h"
#include "desktop/picture_view.h"
#include "desktop/windows_made.h"
#include "stages.h"
#include "support/colors.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include <cmath>
#include <gtest/gtest.h>

namespace {

// The widgets of all controls that can be seen, in any depth.
std::vector<QWidget *> seen_widgets(const frmMain & main, const QWidget & window)
{
    std::vector<QWidget *> seen;
    for (const control * held : main.controls()) {
        auto * const widget = window.findChild<QWidget *>(QString::fromStdString(held->name()));
        if (widget && widget->isVisible())
            seen.push_back(widget);
    }
    return seen;
}

QRect place_in(const QWidget & window, const QWidget & widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

// True where one lies inside the other.
bool related(const QWidget & one, const QWidget & other)
{
    return one.isAncestorOf(&other) || other.isAncestorOf(&one);
}

int widest_item(const QComboBox & list)
{
    int widest = 0;
    for (int i = 0; i < list.count(); ++i)
        widest = std::max(widest, list.fontMetrics().horizontalAdvance(list.itemText(i)));
    return widest;
}

// What the widget needs for its text; nothing where a text of any length has to be cut.
QSize needed(const QWidget & widget)
{
    if (const auto * const list = qobject_cast<const QComboBox *>(&widget))
        return {list->width() - list->lineEdit()->width() + widest_item(*list) + 6,
                list->minimumSizeHint().height()};
    if (qobject_cast<const picture_view *>(&widget) || qobject_cast<const elided_label *>(&widget))
        return {0, qobject_cast<const elided_label *>(&widget) ? widget.minimumSizeHint().height() : 0};
    if (const auto * const box = qobject_cast<const QGroupBox *>(&widget))
        return {box->fontMetrics().horizontalAdvance(box->title()) + 20, box->minimumSizeHint().height()};
    if (qobject_cast<const QLineEdit *>(&widget))
        return {0, widget.fontMetrics().height() + 2};
    if (const auto * const button = qobject_cast<const QPushButton *>(&widget))
        return {button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 10,
                button->fontMetrics().height() + 4};
    if (qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QLabel *>(&widget))
        return widget.sizeHint();
    return {0, widget.minimumSizeHint().height()};
}

// One window for all: its making takes longer than the looking.
struct layout_test : testing::TestWithParam<std::tuple<look, shape>> {
    struct shown_main {
        shown_main()
        {
            bind(main, *window, {});
            main.load();
            window->show();
        }
        scripted_desktop desk;
        frmMain main{desk, listed({})};
        std::unique_ptr<QWidget> window = make_window("frmMain");
    };
    static void SetUpTestSuite() { kept = std::make_unique<shown_main>(); }
    static void TearDownTestSuite() { kept.reset(); }
    layout_test() : window(kept->window.get())
    {
        bring_to(kept->main, std::get<0>(GetParam()), std::get<1>(GetParam()));
        QApplication::processEvents();
        seen = seen_widgets(kept->main, *window);
    }
    static std::unique_ptr<shown_main> kept;
    QWidget * window;
    std::vector<QWidget *> seen;
};

std::unique_ptr<layout_test::shown_main> layout_test::kept;

TEST_P(layout_test, no_two_widgets_overlap)
{
    for (const QWidget * one : seen)
        for (const QWidget * other : seen)
            if (one < other && !related(*one, *other)) {
                EXPECT_FALSE(place_in(*window, *one).intersects(place_in(*window, *other)))
                    << one->objectName().toStdString() << " and " << other->objectName().toStdString();
            }
}

TEST_P(layout_test, every_widget_lies_inside_its_group_and_the_window)
{
    for (const QWidget * one : seen) {
        EXPECT_TRUE(one->parentWidget()->rect().contains(one->geometry())) << one->objectName().toStdString();
        EXPECT_TRUE(window->rect().contains(place_in(*window, *one))) << one->objectName().toStdString();
    }
}

TEST_P(layout_test, no_text_is_cut)
{
    for (const QWidget * one : seen) {
        const QSize wanted = needed(*one);
        EXPECT_LE(wanted.width(), one->width()) << one->objectName().toStdString();
        EXPECT_LE(wanted.height(), one->height()) << one->objectName().toStdString();
    }
}

TEST_P(layout_test, the_tab_key_follows_the_eye)
{
    const QWidget * before = nullptr;
    for (QWidget * one = window->nextInFocusChain(); one != window; one = one->nextInFocusChain()) {
        if (!one->isVisible() || !(one->focusPolicy() & Qt::TabFocus) ||
            std::find(seen.begin(), seen.end(), one) == seen.end())
            continue;
        if (before && before->parentWidget() == one->parentWidget()) {
            const QRect from = place_in(*window, *before), to = place_in(*window, *one);
            const bool next_row = to.center().y() > from.bottom();
            EXPECT_TRUE(next_row || (to.left() >= from.right() && to.bottom() >= from.top()))
                << before->objectName().toStdString() << " to " << one->objectName().toStdString();
        }
        before = one;
    }
}

TEST_P(layout_test, the_window_has_its_fixed_size)
{
    EXPECT_EQ(window->size(),
              std::get<1>(GetParam()) == shape::landscape ? QSize(1183, 675) : QSize(1040, 675));
}

INSTANTIATE_TEST_SUITE_P(stages, layout_test,
                         testing::Combine(testing::ValuesIn(all_looks), testing::ValuesIn(all_shapes)),
                         [](const auto & stage) {
                             return name_of(std::get<0>(stage.param), std::get<1>(stage.param));
                         });

// ---- contrast, by the formula of the web's accessibility guidelines

double light_of(const QColor & color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor & one, const QColor & other)
{
    const double brighter = std::max(light_of(one), light_of(other));
    return (brighter + 0.05) / (std::min(light_of(one), light_of(other)) + 0.05);
}

TEST(looks, every_text_stands_out_from_what_lies_behind_it)
{
    const QPalette colors = QApplication::palette();
    const QColor panel("#2d3034"), stage(0, 0, 0);
    const auto of = [&](QPalette::ColorRole role) { return colors.color(QPalette::Active, role); };
    EXPECT_GE(contrast(of(QPalette::WindowText), of(QPalette::Window)), 4.5);
    EXPECT_GE(contrast(of(QPalette::WindowText), panel), 4.5);
    EXPECT_GE(contrast(of(QPalette::WindowText), stage), 4.5);
    EXPECT_GE(contrast(of(QPalette::Highlight), panel), 4.5);
    EXPECT_GE(contrast(of(QPalette::Text), of(QPalette::Base)), 4.5);
    EXPECT_GE(contrast(of(QPalette::ButtonText), of(QPalette::Button)), 4.5);
    EXPECT_GE(contrast(of(QPalette::HighlightedText), of(QPalette::Highlight)), 4.5);
    EXPECT_GE(contrast(of(QPalette::ToolTipText), of(QPalette::ToolTipBase)), 4.5);
    EXPECT_GE(contrast(of(QPalette::PlaceholderText), of(QPalette::Base)), 4.5);
    EXPECT_EQ(of(QPalette::Window), shown_color(about_background));
}

TEST(looks, the_outline_of_a_box_stands_out_from_its_panel)
{
    EXPECT_GE(contrast(QApplication::palette().color(QPalette::PlaceholderText), QColor("#2d3034")), 3.0);
}

TEST(looks, the_stage_is_black_until_a_collage_is_begun)
{
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {});
    EXPECT_EQ(window->grab().toImage().pixelColor(5, 600), QColor(0, 0, 0));
    main.set_back_color(about_background);
    EXPECT_EQ(window->palette().color(QPalette::Window), shown_color(about_background));
}

}  // namespace
