#pragma once

#include <chrono>
#include <string>

/// A bar on the terminal for work that takes long: on standard error, only if that is a terminal, and only
/// once the work has taken a moment. It is wiped off when the work ends.
class app_Progress
{
public:
    /// `total` steps are to come.
    app_Progress(const std::string& caption, long total);
    app_Progress(const app_Progress&) = delete;
    app_Progress& operator=(const app_Progress&) = delete;
    ~app_Progress();

    /// One more step is done.
    void Step() { Reach(done + 1); }
    /// So many steps are done.
    void Reach(long steps);

    /// The bar as text, without the caption: "[####      ] 40 %".
    static std::string Bar(long done, long total);

private:
    using Clock = std::chrono::steady_clock;

    void Draw();

    std::string caption;
    long total;
    long done = 0;
    bool onTerminal;
    bool drawn = false;
    Clock::time_point next;
};
