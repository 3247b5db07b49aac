#include "support/files/file_steps.h"

#include "support/platform_error.h"

#include <atomic>
#include <utility>

namespace {

std::atomic<const file_gate *> & gate_in_force()
{
    static std::atomic<const file_gate *> gate{nullptr};
    return gate;
}

}  // namespace

gated_files::gated_files(file_gate gate) : held(std::move(gate))
{
    gate_in_force() = &held;
}

gated_files::~gated_files()
{
    gate_in_force() = nullptr;
}

int asked_gate(file_step step, const std::string & path)
{
    const file_gate * const gate = gate_in_force();
    return gate == nullptr ? 0 : (*gate)(step, path);
}

void pass_gate(file_step step, const std::string & path)
{
    if (const int refused = asked_gate(step, path))
        throw from_system(refused, path);
}
