#pragma once

#include "cow_String.h"

#include <exception>

/// Base of all exceptions of the system: a text for people and the place of the throw.
class OVR_EXPORT QRTBasException : public std::exception
{
public:
    /// An exception with this text, not thrown yet.
    explicit QRTBasException(const atr_StringBase& text) noexcept : text(text) {}
    QRTBasException(const QRTBasException&) noexcept = default;
    QRTBasException& operator=(const QRTBasException&) noexcept = default;
    ~QRTBasException() override;

    /// Records the place and throws a copy of this object as the class it is of. `sourceFile` is a constant
    /// text; it is not copied.
    [[noreturn]] void Throw(const char* sourceFile, int sourceLine);

    const char* what() const noexcept override { return text.CString(); }
    /// Source path of the throw; empty before it.
    const char* File() const noexcept { return file; }
    /// Line of the throw; 0 before it.
    int Line() const noexcept { return line; }

protected:
    /// Throws a copy of `*this`; each class that is thrown overrides it with its own.
    [[noreturn]] virtual void Raise() const;

private:
    cow_String text;
    const char* file = "";
    int line = 0;
};
