#include "app_Svg.h"

#include "Svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <clocale>
#include <locale>

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Svg, EscapesTextsAndReplacesWhatIsNoCharacterOfXml)
{
    const std::pair<const char*, const char*> rows[] = {
        {"plain", "plain"},
        {"a<b & \"c\">", "a&lt;b &amp; &quot;c&quot;&gt;"},
        {"größe €", "größe €"},
        {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
        {"bell\x07", "bell\xEF\xBF\xBD"},
        {"\xFF", "\xEF\xBF\xBD"},
        {"\xC3", "\xEF\xBF\xBD"},
        {"\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xE0\x80\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xED\xA0\x80", "\xEF\xBF\xBD"},
        {"\xEF\xBF\xBF", "\xEF\xBF\xBD"},
    };
    for (const auto& [text, escaped] : rows)
        EXPECT_EQ(escaped, app_XmlText(text)) << text;
}

TEST(Svg, WritesNumbersShort)
{
    const std::pair<double, const char*> rows[] = {
        {0.0, "0"},         {-0.0, "0"},      {0.1 + 0.2, "0.3"},       {1e6, "1000000"},
        {2.5e10, "2.5e10"}, {-3e-7, "-3e-7"}, {1234.5678, "1234.5678"}, {1e300, "1e300"},
        {7.1, "7.1"}};
    for (const auto& [number, text] : rows)
        EXPECT_EQ(text, app_NumberText(number));
    EXPECT_EQ("1.2e6", app_NumberText(1.2e6, 6));
}

TEST(Svg, ReachesAsFarAsWhatIsDrawn)
{
    app_Svg svg;
    svg.Line({-30.0, 5.0}, {10.0, 5.0}, {"#000000", 2.0});
    svg.Dot({0.0, -40.0}, 3.0, "#000000");
    svg.Area({app_Circle{{50.0, 0.0}, 20.0}}, "#000000", {});
    svg.Polyline({{0.0, 0.0}, {0.0, 77.0}}, {"#000000", 0.0});
    EXPECT_EQ((app_Point{-31.0, -43.0}), svg.Bounds().Min());
    EXPECT_EQ((app_Point{70.0, 77.0}), svg.Bounds().Max());
    svg.Text({70.0, 0.0}, "12345", {10.0, app_Anchor::Start});
    EXPECT_EQ(70.0 + 5 * 6.0, svg.Bounds().Max().x);
    svg.Text({-31.0, 0.0}, "12345", {10.0, app_Anchor::End});
    EXPECT_EQ(-31.0 - 5 * 6.0, svg.Bounds().Min().x);
    ExpectPicture(svg.Document("lines"));
}

TEST(Svg, IsADocumentWithItsTitle)
{
    app_Svg svg;
    svg.Text({0.0, 0.0}, "a < b", {});
    svg.Heading("materials['<&>']", std::string(500, 'x'));
    const std::vector<XmlElement> elements = ExpectPicture(svg.Document("materials['<&>']"));
    EXPECT_EQ("materials['<&>']", elements.at(1).text);
    EXPECT_EQ("title", elements.at(1).name);
    EXPECT_THAT(TextsOf(elements), ElementsAre("a < b", "materials['<&>']", std::string(90, 'x') + " ..."));
    ExpectTextsApart(elements);
}

TEST(Svg, CutsAHeadingBetweenCharacters)
{
    app_Svg svg;
    svg.Text({0.0, 0.0}, "x", {});
    std::string title = "x";
    for (int i = 0; i < 60; ++i)
        title += "ß";
    svg.Heading(title, "");
    EXPECT_EQ(title.substr(0, 89) + " ...", TextsOf(ExpectPicture(svg.Document(title))).at(1));
}

TEST(Svg, DrawsHolesAsHoles)
{
    app_Svg svg;
    svg.Area({app_Circle{{}, 10.0}, app_Polygon{{-1, -1}, {1, -1}, {0, 1}}}, "#abcdef", {"#000000", 0.0});
    EXPECT_THAT(svg.Document(""),
                HasSubstr("<path d=\"M-10 0A10 10 0 0 1 10 0A10 10 0 0 1 -10 0ZM-1 -1L1 -1L0 1Z\" "
                          "fill=\"#abcdef\" fill-rule=\"evenodd\" stroke=\"none\"/>"));
}

/// A locale of the process whose numbers have a decimal comma.
class CommaLocale
{
public:
    CommaLocale() : before(std::locale::global(std::locale(std::locale::classic(), new Comma))) {}
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() { std::locale::global(before); }

private:
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
    };

    std::locale before;
};

TEST(Svg, HasDecimalPointsInAnyLocale)
{
    const CommaLocale locale;
    app_Svg svg;
    svg.Line({0.5, 1.25}, {2.0, 3.0}, {});
    EXPECT_THAT(svg.Document(""), HasSubstr("x1=\"0.5\" y1=\"1.25\""));
    EXPECT_EQ("2.5", app_NumberText(2.5));
}

RC_GTEST_PROP(Svg, isWellFormedWhateverItsTextsAre, (const std::string& text))
{
    app_Svg svg;
    svg.Text({0.0, 0.0}, text, {});
    XmlElements(svg.Document(text));
}

// The reader of these tests must itself refuse what is wrong.
TEST(XmlElements, RefusesWhatIsNotWellFormed)
{
    for (const char* document :
         {"", "<a>", "<a></b>", "<a/><b/>", "<a x=1/>", "<a x=\"1\" x=\"2\"/>", "<a>&</a>", "<a>&nbsp;</a>",
          "<a x=\"<\"/>", "x<a/>", "<a>\x07</a>", "</a>", "<1/>"})
        EXPECT_THROW(XmlElements(document), std::runtime_error) << document;
    EXPECT_EQ(2U, XmlElements("<a x=\"1\">&lt;<b/></a>\n").size());
}

} // namespace
