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

    /// Size of the section of this name; 0 if there is none.
    std::size_t SectionSize(const std::string& name) const
    {
        const std::vector<Elf64_Shdr> sections = Sections();
        const Elf64_Shdr names = sections[At<Elf64_Ehdr>(0).e_shstrndx];
        for (const Elf64_Shdr& section : sections)
        {
            if (name == bytes.data() + names.sh_offset + section.sh_name)
                return section.sh_size;
        }
        return 0;
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

    std::vector<char> bytes;
};

// The compiler's start-up code has an entry of its own in every shared object, and each sanitizer adds one.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t entriesOfTheToolchain = 2;
#else
constexpr std::size_t entriesOfTheToolchain = 1;
#endif

TEST(LibraryFile, HasOneLoadTimeInitializer)
{
    const ElfFile library(OVR_LIBRARY);
    ASSERT_TRUE(library.IsElf()) << OVR_LIBRARY;
    EXPECT_EQ(entriesOfTheToolchain + 1, library.SectionSize(".init_array") / sizeof(void*));
    EXPECT_TRUE(library.Contains("0 OVRQRTVdbAttrEO2 attribute library"));
}

} // namespace
