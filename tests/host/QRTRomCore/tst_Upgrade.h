#pragma once

#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassVersion.h"
#include "dbc_Row.h"
#include "tst_Store.h"

#include <functional>

// Classes that exist as descriptions alone, in old forms and in the form of this release, for tests of
// upgrades.

/// One form of a class.
struct tst_Form
{
    struct Attribute
    {
        const char* name;
        cls_AttributeType type;
        unsigned typeId = 1;
        cls_CollectionType collection = cls_CollectionNone;
    };

    const char* name;
    unsigned classId;
    int version;
    unsigned baseId;
    std::vector<Attribute> attributes;
};

/// What an old version declares beside its form.
struct tst_OldForm
{
    tst_Form form;
    std::function<void(dbc_DatabaseConverter&)> schemaChanges = {};
    std::function<void(dbc_DatabaseConverter&)> classesToDelete = {};
    std::function<void(dbc_DatabaseConverter&)> classesToRename = {};
    std::function<void(dbc_DatabaseConverter&)> tablesToRename = {};
};

/// A `schemaChanges` of one step.
std::function<void(dbc_DatabaseConverter&)> tst_Step(const char* name, unsigned classId, int from, int to,
                                                     dbc_ConversionFunction conversion = nullptr,
                                                     dbc_FinalizeFunction finalizer = nullptr);

/// What classes there are, as long as this lives.
class tst_Release
{
public:
    tst_Release();
    tst_Release(const tst_Release&) = delete;
    tst_Release& operator=(const tst_Release&) = delete;
    ~tst_Release();

    /// A class of this release; `writeDefault` writes a default object, where there are such.
    void Has(const tst_Form& form, std::function<void(const cls_WriteVisitor&)> writeDefault = {});
    void Had(const tst_OldForm& old);

private:
    std::vector<std::pair<cow_String, unsigned>> added;
};

/// Makes a store without rows, with the tables of these forms and those of collections.
void tst_MakeStore(const std::string& path, const std::vector<tst_Form>& forms);
