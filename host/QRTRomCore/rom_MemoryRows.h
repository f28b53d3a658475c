#pragma once

#include "rom_RowStore.h"

#include <deque>
#include <map>
#include <string>
#include <unordered_map>

/// Rows in memory: a sink that can be read from as a source afterwards.
class OVR_EXPORT rom_MemoryRows final : public rom_RowSink, public rom_RowSource
{
public:
    rom_MemoryRows();
    ~rom_MemoryRows() override;

    struct Root
    {
        unsigned classId;
        std::int64_t oid;
    };

    /// A named object, or null.
    const Root* FindRoot(const cow_String& name) const;

    cow_String Name() const override;
    std::int64_t Size() const override;

    int AddTable(const rfm_TableInfo& table) override;
    void InsertRow(int table, std::int64_t oid, const rfm_Cell* cells) override;
    void InsertElement(unsigned classId, std::int64_t oid, std::int64_t position,
                       const rfm_Element& element) override;
    std::int64_t InsertArray(rfm_Type type, const void* values, std::int64_t length) override;
    void InsertRoot(const cow_String& name, unsigned classId, std::int64_t oid) override;

    int FindTable(const rfm_TableInfo& table) override;
    bool OpenRow(int table, std::int64_t oid, rom_OpenRow& row) override;
    void CloseRow(int table, const rom_OpenRow& row) noexcept override;
    void* OpenElements(unsigned classId, std::int64_t oid) override;
    bool NextElement(void* place, rfm_Element& element) override;
    void CloseElements(void* place) noexcept override;
    std::int64_t OpenArray(std::int64_t handle, rfm_Type type) override;
    void ReadArray(void* values) override;

private:
    struct Table
    {
        unsigned classId;
        std::size_t cellCount;
        std::unordered_map<std::int64_t, std::vector<rfm_Cell>> rows;
    };

    struct Array
    {
        rfm_Type type;
        std::int64_t length;
        std::string bytes;
    };

    struct Place
    {
        const std::vector<rfm_Element>* elements;
        std::size_t next;
    };

    rfm_Cell Kept(const rfm_Cell& cell);

    std::vector<Table> tables;
    std::map<std::pair<unsigned, std::int64_t>, std::vector<rfm_Element>> elements;
    std::vector<Array> arrays;
    std::unordered_map<std::string, Root> roots;
    std::deque<std::string> texts;
    const Array* openArray = nullptr;
    std::int64_t size = 0;
};
