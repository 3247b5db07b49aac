#pragma once

/// Which of the two pictures of a collage is being made.
enum class run_size { preview, full };
