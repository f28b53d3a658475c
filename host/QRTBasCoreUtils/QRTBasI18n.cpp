#include "QRTBasI18n.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <langinfo.h>

namespace
{
bool IsAscii(const cow_String& text)
{
    const std::string_view view = text.View();
    return std::all_of(view.begin(), view.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

class Converter
{
public:
    explicit Converter(const char* encoding) : handle(iconv_open(encoding, "UTF-8")) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter()
    {
        if (IsKnown())
            iconv_close(handle);
    }

    bool IsKnown() const { return handle != reinterpret_cast<iconv_t>(-1); }

    cow_String Convert(std::string_view text)
    {
        cow_String converted;
        while (!text.empty())
        {
            const int error = ConvertSome(text, converted);
            if (error == EILSEQ || error == EINVAL)
            {
                converted.append("?");
                text.remove_prefix(CharacterSize(text));
            }
        }
        ConvertSome({}, converted);
        return converted;
    }

private:
    /// Appends what fits a buffer, takes it from `text`, and returns why it stopped, or 0.
    int ConvertSome(std::string_view& text, cow_String& converted)
    {
        char buffer[256];
        char* in = const_cast<char*>(text.data());
        std::size_t inSize = text.size();
        char* out = buffer;
        std::size_t outSize = sizeof buffer;
        const std::size_t result = iconv(handle, in == nullptr ? nullptr : &in, &inSize, &out, &outSize);
        const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
        converted.append(buffer, static_cast<std::size_t>(out - buffer));
        text.remove_prefix(text.size() - inSize);
        return error;
    }

    int ConvertSome(std::string_view&& text, cow_String& converted) { return ConvertSome(text, converted); }

    /// Bytes of the character at the front; 1 if it is broken.
    static std::size_t CharacterSize(std::string_view text)
    {
        std::size_t size = 1;
        if (static_cast<unsigned char>(text.front()) < 0xC0)
            return size;
        while (size < text.size() && size < 4 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
            ++size;
        return size;
    }

    iconv_t handle;
};
} // namespace

cow_String QRTBasI18n::ToLocale(const cow_String& text)
{
    const std::string_view encoding = nl_langinfo(CODESET);
    if (encoding == "ANSI_X3.4-1968")
        return text;
    return ToEncoding(text, encoding.data());
}

cow_String QRTBasI18n::ToEncoding(const cow_String& text, const char* encoding)
{
    if (IsAscii(text) || std::string_view(encoding) == "UTF-8")
        return text;
    Converter converter(encoding);
    return converter.IsKnown() ? converter.Convert(text.View()) : text;
}
