#include "QRTBasException.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

namespace
{
static_assert(std::is_nothrow_copy_constructible_v<QRTBasException>);

class Special : public QRTBasException
{
public:
    explicit Special(int number) : QRTBasException(cow_String("special")), number(number) {}

    int number;

protected:
    [[noreturn]] void Raise() const override { throw Special(*this); }
};

TEST(QRTBasException, HoldsTextAndPlace)
{
    QRTBasException exception(cow_String("what went wrong"));
    EXPECT_STREQ(exception.what(), "what went wrong");
    EXPECT_STREQ(exception.File(), "");
    EXPECT_EQ(exception.Line(), 0);
    try
    {
        exception.Throw("folder/unit", 42);
    }
    catch (const QRTBasException& caught)
    {
        EXPECT_NE(&caught, &exception);
        EXPECT_STREQ(caught.what(), "what went wrong");
        EXPECT_STREQ(caught.File(), "folder/unit");
        EXPECT_EQ(caught.Line(), 42);
    }
    EXPECT_EQ(exception.Line(), 42);
}

TEST(QRTBasException, ThrowsTheClassThatItIs)
{
    const std::unique_ptr<QRTBasException> exception = std::make_unique<Special>(7);
    EXPECT_THROW(exception->Throw("unit", 1), Special);
    try
    {
        exception->Throw("unit", 2);
    }
    catch (const Special& caught)
    {
        EXPECT_EQ(caught.number, 7);
        EXPECT_EQ(caught.Line(), 2);
    }
    EXPECT_THROW(exception->Throw("unit", 3), std::exception);
}

TEST(QRTBasException, TheTextOutlivesTheOneThrown)
{
    const auto thrower = []
    {
        cow_String text("number ");
        text.append(cow_String(5));
        QRTBasException(text).Throw("unit", 1);
    };
    try
    {
        thrower();
        FAIL();
    }
    catch (const std::exception& caught)
    {
        EXPECT_STREQ(caught.what(), "number 5");
    }
}
} // namespace
