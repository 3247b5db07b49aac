#include "support/cores.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sched.h>
#include <sstream>
#include <thread>

namespace {

// The share that a group itself has, in cores; 0 without a limit, which reads "max" or -1.
double cores_of(std::istream & quota, std::istream & period)
{
    double time = 0, of = 0;
    return quota >> time && period >> of && time > 0 && of > 0 ? time / of : 0;
}

double cores_by_one_file(const std::string & group)
{
    std::ifstream file(group + "/cpu.max");
    return cores_of(file, file);
}

double cores_by_two_files(const std::string & group)
{
    std::ifstream quota(group + "/cpu.cfs_quota_us"), period(group + "/cpu.cfs_period_us");
    return cores_of(quota, period);
}

double lesser(double left, double right)
{
    return left == 0 || right == 0 ? std::max(left, right) : std::min(left, right);
}

// Within a container the path may be one of the machine outside, of which only the tree's root is there.
template <typename Share>
double least_on_the_way(const std::string & tree, std::string group, Share share)
{
    double least = share(tree);
    while (group.size() > 1) {
        least = lesser(least, share(tree + group));
        group.resize(std::min(group.rfind('/'), group.size()));
    }
    return least;
}

bool has_word(const std::string & list, const std::string & word)
{
    std::istringstream words(list);
    for (std::string each; std::getline(words, each, ',');)
        if (each == word)
            return true;
    return false;
}

// A line is "7:cpu,cpuacct:/path", or "0::/path" where one tree is for everything.
double cores_of_line(const std::string & line, const std::string & tree)
{
    const std::size_t list = line.find(':'), path = line.find(':', list + 1);
    if (list == std::string::npos || path == std::string::npos)
        return 0;
    const std::string controllers = line.substr(list + 1, path - list - 1), group = line.substr(path + 1);
    if (controllers.empty())
        return least_on_the_way(tree, group, cores_by_one_file);
    if (!has_word(controllers, "cpu"))
        return 0;
    return lesser(least_on_the_way(tree + "/" + controllers, group, cores_by_two_files),
                  least_on_the_way(tree + "/cpu", group, cores_by_two_files));
}

int cores_allowed()
{
    cpu_set_t allowed;
    const bool is_told = ::sched_getaffinity(0, sizeof(allowed), &allowed) == 0;
    const int count = is_told ? CPU_COUNT(&allowed) : static_cast<int>(std::thread::hardware_concurrency());
    const double quota = std::ceil(cores_of_quota({}));
    return std::max(quota > 0 && quota < count ? static_cast<int>(quota) : count, 1);
}

}  // namespace

double cores_of_quota(const quota_files & files)
{
    std::ifstream groups(files.groups);
    double least = 0;
    for (std::string line; std::getline(groups, line);)
        least = lesser(least, cores_of_line(line, files.tree));
    return least;
}

int usable_cores()
{
    static const int cores = cores_allowed();
    return cores;
}
