#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

/// One step that an upgrade plans for a table.
struct dbc_UpgradeStep
{
    int from;
    int to;               ///< version of the stage in which it runs
    bool hasFunction;     ///< whether it takes more than copying attributes by name
    cow_String functions; ///< names of its functions where they are known, with a comma between them
};

/// What an upgrade plans for a table of the old store.
struct dbc_UpgradeTable
{
    cow_String name;
    unsigned classId;
    std::int64_t rows;
    int from;
    int to;             ///< version of the class in this release; 0 for a class that is no more
    cow_String newName; ///< name of the table that the rows join; empty if they join none
    std::vector<dbc_UpgradeStep> steps;
};

/// Makes a store of this release of one that an earlier release wrote. The old file is opened for reading
/// alone and stays as it is. All failures are `rom_StoreException`s.
class OVR_EXPORT dbc_Upgrade
{
public:
    /// Called with the count of rows that are done, and of all rows there are to do; the latter may be too
    /// high where the numbers of rows have holes.
    using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

    /// Plans the upgrade. Throws if there is no way from a table of the store to this release: its class or
    /// its version is not known, a step is missing, or there are two.
    explicit dbc_Upgrade(const cow_String& oldPath);
    dbc_Upgrade(const dbc_Upgrade&) = delete;
    dbc_Upgrade& operator=(const dbc_Upgrade&) = delete;
    ~dbc_Upgrade();

    /// The tables of the old store by class id. Counts their rows when first asked, which throws where the
    /// file is damaged.
    const std::vector<dbc_UpgradeTable>& Tables() const;
    /// Whether every table has the form of this release.
    bool IsCurrent() const;

    /// Makes the new store. There must be no file of that name; there is none until the store is complete,
    /// checked and on the disk. May be called once.
    void Run(const cow_String& newPath, const Progress& progress = {});

private:
    struct Upgrade;
    std::unique_ptr<Upgrade> upgrade;
};
