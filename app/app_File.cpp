#include "app_File.h"

#include "app_Error.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include <unistd.h>

namespace
{

struct Close
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Close>;

[[noreturn]] void Raise(const std::string& path, const char* action)
{
    throw app_Error(path + ": cannot be " + action + ": " + std::strerror(errno));
}

/// Writes to an open file and closes it.
void Write(File file, const std::string& path, const std::string& content)
{
    if (!file || std::fwrite(content.data(), 1, content.size(), file.get()) != content.size())
        Raise(path, "written");
    if (std::fclose(file.release()) != 0)
        Raise(path, "written");
}

void WriteAll(const std::string& path, const std::string& content)
{
    Write(File(std::fopen(path.c_str(), "wb")), path, content);
}

} // namespace

std::string app_ReadFile(const std::string& path, std::size_t limit)
{
    if (std::filesystem::is_directory(path))
        throw app_Error(path + ": is a folder, expected a file");
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        Raise(path, "read");
    std::string content;
    char block[1 << 16];
    while (content.size() < limit)
    {
        const std::size_t wanted = std::min(sizeof block, limit - content.size());
        const std::size_t count = std::fread(block, 1, wanted, file.get());
        if (count == 0)
            break;
        content.append(block, count);
    }
    if (std::ferror(file.get()))
        Raise(path, "read");
    return content;
}

void app_WriteFile(const std::string& path, const std::string& content)
{
    const bool isPlain = !app_Exists(path) || std::filesystem::is_regular_file(path);
    if (!isPlain)
        return WriteAll(path, content);
    const std::string fresh = path + ".new-" + std::to_string(::getpid());
    try
    {
        Write(File(std::fopen(fresh.c_str(), "wb")), path, content);
        if (std::rename(fresh.c_str(), path.c_str()) != 0)
            Raise(path, "written");
    }
    catch (const app_Error&)
    {
        std::remove(fresh.c_str());
        throw;
    }
}

void app_AppendLines(const std::string& path, const std::string& lines)
{
    File file(std::fopen(path.c_str(), "ab+"));
    if (!file)
        Raise(path, "written");
    const bool isInLine =
        !lines.empty() && std::fseek(file.get(), -1, SEEK_END) == 0 && std::fgetc(file.get()) != '\n';
    // Between reading and writing a position must be set; what is appended goes to the end all the same.
    std::fseek(file.get(), 0, SEEK_END);
    Write(std::move(file), path, (isInLine ? "\n" : "") + lines);
}

void app_Print(const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        Raise("standard output", "written");
}

void app_PrintNow(const std::string& text)
{
    app_Print(text);
    if (std::fflush(stdout) != 0)
        Raise("standard output", "written");
}

void app_Warn(const std::string& text, const cmd_Place* place)
{
    std::fprintf(stderr, "vdbattr: warning: %s\n", app_Message(text, place).c_str());
}

bool app_Exists(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

bool app_IsSameFile(const std::string& a, const std::string& b)
{
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored);
}
