#pragma once

#include "QRTBasException.h"
#include "QRTBasStringMode.h"
#include "atr_String.h"

/// A value that a rule refuses. `Text` is the string class of the message; `KindNumber` tells kinds apart for
/// callers that sort exceptions by number.
template <class Text, int KindNumber>
class OVR_EXPORT nex_PrimException : public QRTBasException
{
public:
    static constexpr int Kind = KindNumber;

    nex_PrimException(const Text& text, QRTBasStringMode) noexcept : QRTBasException(text), text(text) {}
    nex_PrimException(const nex_PrimException&) noexcept = default;
    nex_PrimException& operator=(const nex_PrimException&) noexcept = default;
    ~nex_PrimException() override = default;

    /// The message.
    const Text& GetText() const noexcept { return text; }

protected:
    [[noreturn]] void Raise() const override { throw nex_PrimException(*this); }

private:
    Text text;
};

/// A command, or an argument of one, that cannot be carried out. `Text` and `KindNumber` are as above.
template <class Text, int KindNumber>
class OVR_EXPORT nex_CmdException : public QRTBasException
{
public:
    static constexpr int Kind = KindNumber;

    nex_CmdException(const Text& text, QRTBasStringMode) noexcept : QRTBasException(text), text(text) {}
    nex_CmdException(const nex_CmdException&) noexcept = default;
    nex_CmdException& operator=(const nex_CmdException&) noexcept = default;
    ~nex_CmdException() override = default;

    /// The message.
    const Text& GetText() const noexcept { return text; }

protected:
    [[noreturn]] void Raise() const override { throw nex_CmdException(*this); }

private:
    Text text;
};

extern template class nex_PrimException<atr_String, 1>;
extern template class nex_CmdException<atr_String, 2>;
extern template class nex_CmdException<cow_String, 9>;
