#include "support/files/text_file.h"
#include "tests/session/undo/undo_session.h"
#include "tests/sweep_stride.h"

#include <random>

// Walks over the controls by chance, by value, as a user might click.

namespace {

enum class manner { step, typing, amendment };

struct walk_step {
    manner how = manner::step;
    const control * by = nullptr;
};

class walker {
public:
    /// Chance in the collage is chance as well, or the same number again and again.
    explicit walker(std::uint64_t seed) : engine(seed) {}
    void draw_by_chance() { session.main.random = seeded_random(engine()); }

    void begin_again(std::uint64_t seed) { engine.seed(seed); }

    int below(std::size_t count) { return static_cast<int>(engine() % count); }

    // A control that can be used, changed as a user would; nothing where it can't.
    walk_step change()
    {
        for (;;) {
            const std::vector<control *> & all = session.main.controls();
            control & each = *all[static_cast<std::size_t>(below(all.size()))];
            if (!each.visible() || !each.enabled())
                continue;
            if (const auto done = changed(each)) {
                trail += each.name() + "=" + each.value() + " ";
                return *done;
            }
        }
    }

    undo_session session;
    std::string trail;  ///< what was changed, for messages

private:
    std::optional<walk_step> changed(control & each)
    {
        frmMain & main = session.main;
        if (auto * const box = dynamic_cast<check_box *>(&each)) {
            box->tick(!box->ticked());
            return walk_step{};
        }
        if (auto * const option = dynamic_cast<option_button *>(&each))
            return selected(*option);
        if (auto * const list = dynamic_cast<combo_box *>(&each))
            return list->items().empty() ? std::nullopt : std::optional(from_list(*list));
        if (auto * const clicked = dynamic_cast<button *>(&each))
            return clicked_on(*clicked);
        if (&each != &main.txtCaption)
            return std::nullopt;
        main.txtCaption.set_text(std::string(static_cast<std::size_t>(below(4)), 'x'));
        return walk_step{manner::typing, &each};
    }

    std::optional<walk_step> selected(option_button & option)
    {
        frmMain & main = session.main;
        if (&option == &main.optBGimage && !option.selected() && main.txtBGimage.text().empty())
            session.desk.will_choose_file(session.photos.front());
        option.select();
        const bool display = &option == &main.optPreview || &option == &main.optSample;
        return walk_step{display ? manner::amendment : manner::step};
    }

    walk_step from_list(combo_box & list)
    {
        if (below(3) == 0) {
            list.set_text(std::to_string(below(70)));
            return {manner::typing, &list};
        }
        list.choose(below(list.items().size()));
        return {};
    }

    std::optional<walk_step> clicked_on(button & wanted)
    {
        frmMain & main = session.main;
        for (const button * const color : {&main.cmdBGcolor, &main.cmdFrameColor, &main.cmdShadowColor})
            if (&wanted == color)
                session.desk.will_choose_color(static_cast<std::uint32_t>(below(0xFFFFFF)));
        for (const button * const other : {&main.cmdPhotos, &main.cmdFont, &main.cmdBGimage, &main.cmdFlurn,
                                           &main.cmdCancel, &main.cmdHelp})
            if (&wanted == other)
                return std::nullopt;
        wanted.click();
        return walk_step{};
    }

    std::mt19937_64 engine;
};

// What undo has to lead through, kept by the rules as a user would tell them.
struct expected_path {
    std::vector<sight> sights;
    std::vector<int> steps_to{0};  ///< how many changes led to each
    const control * typed_in = nullptr;

    void go(int step, const walk_step & done, sight now)
    {
        const bool goes_on = done.how == manner::typing && done.by == typed_in;
        const bool leads_on = !(now == sights.back());
        if (done.how == manner::amendment || goes_on || !leads_on)
            sights.back() = std::move(now);
        else
            add(std::move(now));
        steps_to.back() = step;
        typed_in = done.how == manner::typing && (goes_on || leads_on) ? done.by : nullptr;
        if (goes_on && sights.back() == sights[sights.size() - 2])
            drop();
    }

private:
    void add(sight now)
    {
        sights.push_back(std::move(now));
        steps_to.push_back(0);
    }

    void drop()
    {
        sights.pop_back();
        const int last = steps_to.back();
        steps_to.pop_back();
        steps_to.back() = last;
        typed_in = nullptr;
    }
};

expected_path walked(walker & walk, int steps)
{
    expected_path path;
    path.sights.push_back(walk.session.seen());
    for (int step = 1; step <= steps; ++step) {
        const walk_step done = walk.change();
        path.go(step, done, walk.session.seen());
    }
    return path;
}

void expect_sight(const undo_session & session, const sight & wanted)
{
    const sight now = session.seen();
    EXPECT_TRUE(now.picture == wanted.picture);
    EXPECT_EQ(now.shown_file, wanted.shown_file);
    EXPECT_EQ(now.photos, wanted.photos);
    for (std::size_t i = 0; i < now.controls.size(); ++i)
        EXPECT_EQ(now.controls[i].value + now.controls[i].caption,
                  wanted.controls[i].value + wanted.controls[i].caption)
            << i;
    EXPECT_TRUE(now.controls == wanted.controls);
}

void expect_way_back_and_forth(walker & walk, const expected_path & path)
{
    for (auto at = path.sights.rbegin() + 1; at != path.sights.rend(); ++at) {
        ASSERT_TRUE(walk.session.undo());
        expect_sight(walk.session, *at);
    }
    EXPECT_FALSE(walk.session.undo());
    for (auto at = path.sights.begin() + 1; at != path.sights.end(); ++at) {
        ASSERT_TRUE(walk.session.redo());
        expect_sight(walk.session, *at);
    }
    EXPECT_FALSE(walk.session.redo());
}

// The picture, and what a full-size run would draw.
std::vector<std::string> what_is_seen(const undo_session & session)
{
    std::vector<std::string> texts = session.written();
    texts.push_back(read_file(finished_path(session.main)));
    return texts;
}

struct random_walks : testing::TestWithParam<int> {};

}  // namespace

TEST_P(random_walks, lead_back_and_forth_through_the_same_pictures)
{
    for (int walk_number = 0; walk_number < 30; ++walk_number) {
        SCOPED_TRACE(walk_number);
        walker walk(static_cast<std::uint64_t>(GetParam() * 30 + walk_number + 1));
        walk.draw_by_chance();
        const expected_path path = walked(walk, 1 + walk_number % 6);
        SCOPED_TRACE(walk.trail);
        expect_way_back_and_forth(walk, path);
        if (HasFailure())
            return;
    }
}

TEST_P(random_walks, go_on_from_where_they_lead_back_to_as_if_nothing_had_come_after)
{
    const auto seed = static_cast<std::uint64_t>(GetParam());
    walker back(seed), fresh(seed);
    const expected_path path = walked(back, 6);
    const std::size_t at = path.sights.size() / 2;
    for (std::size_t step = path.sights.size(); step > at + 1; --step)
        ASSERT_TRUE(back.session.undo());
    walked(fresh, path.steps_to[at]);
    for (walker * const each : {&back, &fresh}) {
        each->begin_again(seed + 1000);
        each->trail.clear();
    }
    for (int step = 0; step < 4; ++step) {
        EXPECT_TRUE(what_is_seen(back.session) == what_is_seen(fresh.session)) << back.trail;
        back.change();
        fresh.change();
    }
    EXPECT_EQ(back.trail, fresh.trail);
}

INSTANTIATE_TEST_SUITE_P(seeds, random_walks, testing::Range(0, 10, sweep_stride));
