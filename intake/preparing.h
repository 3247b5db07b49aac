#pragma once

#include "intake/decoder_process.h"
#include "intake/intake_photo.h"
#include "intake/prepared_shelf.h"
#include "support/workers.h"

#include <atomic>
#include <future>
#include <vector>

/// Prepares photos on all workers, each from its file to a copy that a collage takes; originals are only
/// read.
class preparing {
public:
    /// Begins. Workers and shelf have to last.
    preparing(std::vector<intake_photo> wanted, prepared_shelf & copies, decoder program,
              worker_pool & workers);
    preparing(const preparing &) = delete;
    preparing & operator=(const preparing &) = delete;
    /// Stops what isn't done yet, leaving nothing half made.
    ~preparing();

    std::size_t wanted() const { return todo.size(); }
    std::size_t done() const { return done_count; }
    /// True when all are done, or it was stopped; waits for that so long.
    bool is_over_within(std::chrono::milliseconds longest);
    void stop() { stopping = true; }

    /// The photos in their order, once it is over: those that are `ready`, and why the others aren't.
    const std::vector<intake_photo> & photos() const { return all; }
    std::size_t made() const { return made_count; }  ///< those that weren't on the shelf
    bool ran_without_sandbox() const { return without_sandbox; }

private:
    void engage();
    void work();
    void prepare(intake_photo & photo);
    std::optional<std::string> copy_of(intake_photo & photo);
    std::optional<std::string> jpeg_for(intake_photo & photo);

    std::vector<intake_photo> all;
    std::vector<std::size_t> todo;
    prepared_shelf & shelf;
    decoder used;
    std::atomic<std::size_t> next = 0, done_count = 0, made_count = 0;
    std::atomic<bool> stopping = false, without_sandbox = false;
    worker_pool & pool;
    std::vector<std::future<void>> engaged;
};
