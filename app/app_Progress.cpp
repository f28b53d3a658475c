#include "app_Progress.h"

#include <algorithm>
#include <cstdio>

#include <fmt/format.h>
#include <unistd.h>

namespace
{

constexpr int barWidth = 40;
constexpr long stepsBetweenLooks = 64;
constexpr std::chrono::milliseconds patience{300};
constexpr std::chrono::milliseconds interval{100};

} // namespace

app_Progress::app_Progress(const std::string& caption, long total)
    : caption(caption), total(total), onTerminal(::isatty(STDERR_FILENO) != 0), next(Clock::now() + patience)
{}

app_Progress::~app_Progress()
{
    if (drawn)
        std::fputs("\r\033[K", stderr);
}

void app_Progress::Reach(long steps)
{
    const bool look = done / stepsBetweenLooks != steps / stepsBetweenLooks;
    done = steps;
    if (onTerminal && look && Clock::now() >= next)
        Draw();
}

std::string app_Progress::Bar(long done, long total)
{
    const double part =
        total > 0 ? std::clamp(static_cast<double>(done) / static_cast<double>(total), 0.0, 1.0) : 1.0;
    const int filled = static_cast<int>(part * barWidth);
    return fmt::format("[{:#<{}}{: <{}}] {} %", "", filled, "", barWidth - filled,
                       static_cast<int>(part * 100.0));
}

void app_Progress::Draw()
{
    std::fputs(fmt::format("\r{} {}\033[K", caption, Bar(done, total)).c_str(), stderr);
    drawn = true;
    next = Clock::now() + interval;
}
