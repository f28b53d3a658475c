#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

/// What a cell holds. The codes are those that enter a row's check number.
enum class rfm_CellKind : unsigned char
{
    Unset = 0, ///< nothing was put yet; never stored
    Integer = 1,
    Real = 2,
    Text = 3,
    Blob = 4,
    Null = 5
};

/// One value of a row. Texts and blobs are not owned: they stay as long as whoever made the cell says.
struct rfm_Cell
{
    union
    {
        std::int64_t integer = 0;
        double real;
        const char* bytes;
    };
    std::uint32_t size = 0; ///< bytes of a text or blob
    rfm_CellKind kind = rfm_CellKind::Unset;

    static rfm_Cell Null()
    {
        rfm_Cell cell;
        cell.kind = rfm_CellKind::Null;
        return cell;
    }

    static rfm_Cell Integer(std::int64_t value)
    {
        rfm_Cell cell;
        cell.integer = value;
        cell.kind = rfm_CellKind::Integer;
        return cell;
    }

    static rfm_Cell Real(double value)
    {
        rfm_Cell cell;
        cell.real = value;
        cell.kind = rfm_CellKind::Real;
        return cell;
    }

    static rfm_Cell Text(std::string_view text)
    {
        return Bytes(rfm_CellKind::Text, text.data(), text.size());
    }

    static rfm_Cell Blob(const void* data, std::size_t size)
    {
        return Bytes(rfm_CellKind::Blob, static_cast<const char*>(data), size);
    }

    bool IsNull() const { return kind == rfm_CellKind::Null; }

    bool Is(rfm_CellKind sought) const { return kind == sought; }

    std::string_view View() const { return {bytes, size}; }

private:
    static rfm_Cell Bytes(rfm_CellKind kind, const char* data, std::size_t size)
    {
        rfm_Cell cell;
        // SQLite hands out null for nothing, and takes null for NULL.
        cell.bytes = data ? data : "";
        cell.size = static_cast<std::uint32_t>(size);
        cell.kind = kind;
        return cell;
    }
};

/// A double whose bits a REAL column does not keep: NaN and -0.0. It is stored as a blob of its eight bytes.
inline bool rfm_NeedsBits(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return value != value || bits == std::uint64_t{1} << 63;
}

/// An integer as a real number if that is the same, any other cell as it is.
inline rfm_Cell rfm_AsReal(const rfm_Cell& cell)
{
    constexpr std::int64_t most = std::int64_t{1} << 53;
    const bool isExact = cell.Is(rfm_CellKind::Integer) && cell.integer >= -most && cell.integer <= most;
    return isExact ? rfm_Cell::Real(static_cast<double>(cell.integer)) : cell;
}
