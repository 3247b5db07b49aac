#include "intake/preparing.h"

#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Photos that are gone: all that happens to them is that they are refused.
std::vector<intake_photo> photos_that_are_gone(const temporary_folder & folder, int count)
{
    std::vector<intake_photo> photos;
    for (int i = 0; i < count; ++i)
        photos.push_back({.path = folder.at(std::to_string(i) + ".jpg"),
                          .kind = picture_kind::jpeg,
                          .need = photo_need::copy});
    return photos;
}

struct preparing_test : testing::Test {
    /// Keeps a worker busy until `leave` is called.
    void busy(worker_pool & workers)
    {
        workers.begin([left = left] { left.wait(); });
    }

    preparing prepare(int count, worker_pool & workers)
    {
        return {photos_that_are_gone(folder, count), shelf, decoder_in(folder.path()), workers};
    }

    void leave() { leaving.set_value(); }

    temporary_folder folder;
    prepared_shelf shelf{folder.path()};
    std::promise<void> leaving;
    std::shared_future<void> left{leaving.get_future()};
};

}  // namespace

TEST_F(preparing_test, waits_for_the_workers_of_the_pool)
{
    worker_pool workers(1);
    busy(workers);
    preparing work = prepare(5, workers);
    EXPECT_FALSE(work.is_over_within(0ms));
    EXPECT_EQ(work.done(), 0U);
    leave();
    EXPECT_TRUE(work.is_over_within(1min));
    EXPECT_EQ(work.done(), 5U);
    for (const intake_photo & photo : work.photos())
        EXPECT_EQ(photo.why, "there is no such file any more");
}

TEST_F(preparing_test, begins_later_where_the_pool_is_full)
{
    worker_pool workers(2);
    while (workers.has_room())
        busy(workers);
    preparing work = prepare(3, workers);
    EXPECT_FALSE(work.is_over_within(0ms));
    leave();
    while (!work.is_over_within(1ms)) {}
    EXPECT_EQ(work.done(), 3U);
}

TEST_F(preparing_test, what_is_stopped_comes_to_its_end)
{
    worker_pool workers(1);
    busy(workers);
    preparing work = prepare(4, workers);
    work.stop();
    leave();
    EXPECT_TRUE(work.is_over_within(1min));
    for (const intake_photo & photo : work.photos())
        EXPECT_EQ(photo.need, photo_need::refusal);
}

TEST_F(preparing_test, without_photos_it_is_over_at_once)
{
    worker_pool workers(1);
    EXPECT_TRUE(prepare(0, workers).is_over_within(0ms));
}

TEST_F(preparing_test, without_workers_all_is_done_when_it_begins)
{
    worker_pool none(0);
    EXPECT_EQ(prepare(3, none).done(), 3U);
}
