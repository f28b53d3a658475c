#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <elf.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{

/// The library's file, section by section.
class ElfFile
{
public:
    explicit ElfFile(const char* path)
    {
        std::ifstream file(path, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    bool IsElf() const
    {
        return bytes.size() > sizeof(Elf64_Ehdr) && std::memcmp(bytes.data(), ELFMAG, SELFMAG) == 0;
    }

    std::vector<Elf64_Shdr> Sections() const
    {
        const auto header = At<Elf64_Ehdr>(0);
        std::vector<Elf64_Shdr> sections;
        for (unsigned i = 0; i < header.e_shnum; ++i)
            sections.push_back(At<Elf64_Shdr>(header.e_shoff + i * sizeof(Elf64_Shdr)));
        return sections;
    }

    /// Names of the functions that run when the file is loaded, from its load-time relocations and symbols.
    std::vector<std::string> Initializers() const
    {
        const Elf64_Shdr initArray = Section(".init_array");
        std::vector<std::string> names;
        for (const auto& relocation : Entries<Elf64_Rela>(Section(".rela.dyn")))
        {
            if (relocation.r_offset - initArray.sh_addr < initArray.sh_size)
                names.push_back(FunctionAt(static_cast<Elf64_Addr>(relocation.r_addend)));
        }
        EXPECT_EQ(initArray.sh_size / sizeof(Elf64_Addr), names.size()) << "every entry has its relocation";
        return names;
    }

    bool Contains(const std::string& text) const
    {
        return std::string_view(bytes.data(), bytes.size()).find(text) != std::string_view::npos;
    }

private:
    template <class T>
    T At(std::size_t offset) const
    {
        T value;
        std::memcpy(&value, bytes.data() + offset, sizeof value);
        return value;
    }

    /// The section of this name; of size 0 if there is none.
    Elf64_Shdr Section(const std::string& name) const
    {
        const std::vector<Elf64_Shdr> sections = Sections();
        const Elf64_Shdr names = sections[At<Elf64_Ehdr>(0).e_shstrndx];
        for (const Elf64_Shdr& section : sections)
        {
            if (name == bytes.data() + names.sh_offset + section.sh_name)
                return section;
        }
        return {};
    }

    template <class T>
    std::vector<T> Entries(const Elf64_Shdr& section) const
    {
        std::vector<T> entries;
        for (std::size_t at = 0; at < section.sh_size; at += sizeof(T))
            entries.push_back(At<T>(section.sh_offset + at));
        return entries;
    }

    std::string FunctionAt(Elf64_Addr address) const
    {
        const Elf64_Shdr names = Section(".strtab");
        for (const auto& symbol : Entries<Elf64_Sym>(Section(".symtab")))
        {
            if (symbol.st_value == address && ELF64_ST_TYPE(symbol.st_info) == STT_FUNC)
                return bytes.data() + names.sh_offset + symbol.st_name;
        }
        return "unnamed";
    }

    std::vector<char> bytes;
};

/// Whether the function is a sanitizer's, which has one for each object file.
bool IsOfTheSanitizer(const std::string& function)
{
    return function == "_sub_I_00099_1" || function == "asan.module_ctor";
}

TEST(LibraryFile, HasOneLoadTimeInitializer)
{
    const ElfFile library(OVR_LIBRARY);
    ASSERT_TRUE(library.IsElf()) << OVR_LIBRARY;
    std::vector<std::string> initializers = library.Initializers();
    EXPECT_NE(0u, std::erase(initializers, "frame_dummy")) << "the names are those of the functions";
    std::erase_if(initializers, IsOfTheSanitizer);
    EXPECT_THAT(initializers, testing::SizeIs(1));
    EXPECT_TRUE(library.Contains("0 OVRQRTVdbAttrEO2 attribute library"));
}

} // namespace
