#include "rfm_NewFile.h"

#include "rom_StoreException.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr mode_t storeMode = 0666;

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

bool IsSameFile(int descriptor, const std::string& path)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 && lstat(path.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}
} // namespace

rfm_NewFile::rfm_NewFile(const cow_String& path) : path(path.CString()), temporaryPath(this->path + ".saving")
{
    RequireNoFile();
    // A file that was published or removed between its opening and its locking is somebody else's by now.
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt)
    {
        if (Claim())
            return;
    }
    Raise("Another save to this file is under way", EBUSY);
}

rfm_NewFile::~rfm_NewFile()
{
    if (!isPublished)
    {
        unlink((temporaryPath + "-journal").c_str());
        unlink(temporaryPath.c_str());
    }
    close(lock);
}

bool rfm_NewFile::Claim()
{
    lock = open(temporaryPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, storeMode);
    if (lock < 0)
        Raise("The file can't be made", errno);
    if (flock(lock, LOCK_EX | LOCK_NB) != 0)
    {
        close(lock);
        Raise("Another save to this file is under way", EBUSY);
    }
    if (IsSameFile(lock, temporaryPath))
    {
        unlink((temporaryPath + "-journal").c_str());
        if (ftruncate(lock, 0) == 0)
            return true;
        const int error = errno;
        close(lock);
        Raise("The file can't be emptied", error);
    }
    close(lock);
    return false;
}

void rfm_NewFile::RequireNoFile() const
{
    struct stat found = {};
    if (lstat(path.c_str(), &found) == 0)
        Raise("There is a file of this name already", EEXIST);
}

void rfm_NewFile::Publish()
{
    if (renameat2(AT_FDCWD, temporaryPath.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) != 0)
    {
        if (errno != EINVAL && errno != ENOSYS)
            Raise("The file can't be given its name", errno);
        // A file system that can't refuse to replace.
        RequireNoFile();
        if (rename(temporaryPath.c_str(), path.c_str()) != 0)
            Raise("The file can't be given its name", errno);
    }
    isPublished = true;
    SyncFolder();
}

void rfm_NewFile::SyncFolder() const
{
    const int folder = open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        Raise("The folder can't be opened", errno);
    const int result = fsync(folder);
    const int error = errno;
    close(folder);
    // Some file systems have nothing to sync for a folder, and say so.
    if (result != 0 && error != EINVAL)
        Raise("The folder can't be synced", error);
}

void rfm_NewFile::Raise(const char* deed, int error) const
{
    const std::string message = std::string(deed) + " (" + std::strerror(error) + ").";
    rom_StoreException(path.c_str(), message.c_str()).Throw(__FILE__, __LINE__);
}
