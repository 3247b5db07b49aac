#include "support/cores.h"

#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

// The files of a machine that limits its processes.
struct limited_machine {
    temporary_folder root;
    quota_files files{.groups = root.at("cgroup"), .tree = root.at("tree")};

    double with_groups(const std::string & lines) const
    {
        root.write("cgroup", lines);
        return cores_of_quota(files);
    }
};

}  // namespace

TEST(cores_of_quota, no_files_are_no_limit)
{
    EXPECT_EQ(cores_of_quota({.groups = "/nowhere/cgroup", .tree = "/nowhere"}), 0);
    EXPECT_EQ(limited_machine().with_groups("0::/a\n"), 0);
}

TEST(cores_of_quota, one_tree_for_all_tells_quota_and_period_in_one_file)
{
    const limited_machine machine;
    machine.root.write("tree/a/b/cpu.max", "250000 100000\n");
    EXPECT_EQ(machine.with_groups("0::/a/b\n"), 2.5);
}

TEST(cores_of_quota, the_least_of_a_group_and_those_around_it_counts)
{
    const limited_machine machine;
    machine.root.write("tree/a/b/c/cpu.max", "max 100000\n");
    machine.root.write("tree/a/b/cpu.max", "300000 100000\n");
    machine.root.write("tree/a/cpu.max", "150000 100000\n");
    EXPECT_EQ(machine.with_groups("0::/a/b/c\n"), 1.5);
}

TEST(cores_of_quota, within_a_container_the_root_of_the_tree_is_the_group)
{
    const limited_machine machine;
    machine.root.write("tree/cpu.max", "100000 100000\n");
    EXPECT_EQ(machine.with_groups("0::/machine/somewhere/else\n"), 1);
    EXPECT_EQ(machine.with_groups("0::/\n"), 1);
}

TEST(cores_of_quota, trees_of_their_own_tell_quota_and_period_in_two_files)
{
    const limited_machine machine;
    machine.root.write("tree/cpu,cpuacct/a/cpu.cfs_quota_us", "400000\n");
    machine.root.write("tree/cpu,cpuacct/a/cpu.cfs_period_us", "200000\n");
    EXPECT_EQ(machine.with_groups("9:memory:/m\n4:cpu,cpuacct:/a\n0::/\n"), 2);
}

TEST(cores_of_quota, a_tree_may_be_found_under_its_short_name)
{
    const limited_machine machine;
    machine.root.write("tree/cpu/cpu.cfs_quota_us", "50000\n");
    machine.root.write("tree/cpu/cpu.cfs_period_us", "100000\n");
    EXPECT_EQ(machine.with_groups("4:cpuacct,cpu:/docker/1\n"), 0.5);
}

TEST(cores_of_quota, no_quota_and_lines_of_another_kind_limit_nothing)
{
    const limited_machine machine;
    machine.root.write("tree/cpu/a/cpu.cfs_quota_us", "-1\n");
    machine.root.write("tree/cpu/a/cpu.cfs_period_us", "100000\n");
    machine.root.write("tree/cpuset/a/cpu.max", "100000 100000\n");
    EXPECT_EQ(machine.with_groups("4:cpu:/a\n5:cpuset:/a\nno line\n7:x\n\n"), 0);
}

TEST(usable_cores, is_at_least_one)
{
    EXPECT_GE(usable_cores(), 1);
}
