#pragma once

#include "mdl_KeyedRepository.h"

/// Objects of one family by number. It keeps the time of its last change and enters every insertion, removal
/// and writable access into the history of changes, with the number where a repository by name has the name.
template <class K, class T>
class mdl_MapOfCowsRepository : public mdl_KeyedRepository<mdl_MapOfCowsRepository<K, T>, K, T>
{
    using Keyed = mdl_KeyedRepository<mdl_MapOfCowsRepository<K, T>, K, T>;

public:
    /// Empty.
    mdl_MapOfCowsRepository() : mdl_MapOfCowsRepository(cow_String()) {}

    /// Empty; changes are reported under `path`.
    explicit mdl_MapOfCowsRepository(const cow_String& path) : Keyed(path) {}

    /// `isChanged` is whether the repository counts as one into which something was inserted.
    explicit mdl_MapOfCowsRepository(const cls_ReadVisitor& visitor, bool isChanged = false)
        : Keyed(visitor, isChanged)
    {}

    mdl_MapOfCowsRepository(const mdl_MapOfCowsRepository&) = default;
    mdl_MapOfCowsRepository& operator=(const mdl_MapOfCowsRepository&) = default;
    ~mdl_MapOfCowsRepository() override = default;

    mdl_MapOfCowsRepository* Copy() const override { return new mdl_MapOfCowsRepository(*this); }

    mdl_MapOfCowsRepository* DeepCopy() const override { return this->CopyWithoutSharing(); }

    /// Notes a change.
    void UpdateTimeStamp() { this->SetTimeStamp(); }

private:
    friend Keyed;

    /// Numbers changed are not kept.
    void AddToDelta(const K&) {}
};
