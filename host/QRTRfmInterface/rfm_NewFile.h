#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

#include <string>

/// A file in the making. It grows under a name of its own beside the one that it will have, so that under the
/// latter there is nothing or all of it.
class OVR_EXPORT rfm_NewFile
{
public:
    /// Throws `rom_StoreException` if there is a file under `path`, or another save to it is under way. What
    /// an interrupted save left behind is taken over.
    explicit rfm_NewFile(const cow_String& path);
    rfm_NewFile(const rfm_NewFile&) = delete;
    rfm_NewFile& operator=(const rfm_NewFile&) = delete;
    /// Removes the file unless it was published.
    ~rfm_NewFile();

    const std::string& TemporaryPath() const { return temporaryPath; }

    /// Gives the file, which must be complete and closed, its name, and sees to it that the name stays.
    void Publish();

private:
    bool Claim();
    [[noreturn]] void Raise(const char* deed, int error) const;
    void RequireNoFile() const;
    void SyncFolder() const;

    std::string path;
    std::string temporaryPath;
    int lock = -1;
    bool isPublished = false;
};
