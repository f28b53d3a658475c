#include "Svg.h"

#include "app_Svg.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>

namespace
{

class XmlReader
{
public:
    explicit XmlReader(const std::string& document) : document(document) {}

    std::vector<XmlElement> Elements()
    {
        for (const unsigned char c : document)
            Require(c >= 0x20 || c == '\n' || c == '\t', "a control character");
        while (place < document.size())
        {
            if (document[place] == '<')
                Tag();
            else
                Text();
        }
        Require(open.empty(), "an element that is not closed");
        Require(elements.size() > 0, "no element");
        return elements;
    }

private:
    void Require(bool condition, const std::string& what) const
    {
        if (!condition)
            throw std::runtime_error("at " + std::to_string(place) + ": " + what);
    }

    bool Take(const std::string& text)
    {
        if (document.compare(place, text.size(), text) != 0)
            return false;
        place += text.size();
        return true;
    }

    std::string Name()
    {
        const std::size_t end = document.find_first_of(" \n=/>", place);
        Require(end != std::string::npos && end > place, "no name");
        const std::string name = document.substr(place, end - place);
        Require(std::isalpha(static_cast<unsigned char>(name[0])) != 0, "a name that begins with no letter");
        place = end;
        return name;
    }

    void Tag()
    {
        if (Take("</"))
        {
            Require(!open.empty() && Name() == elements[open.back()].name, "an end tag of another element");
            Require(Take(">"), "an end tag without its end");
            open.pop_back();
            return;
        }
        Take("<");
        Require(elements.empty() || !open.empty(), "a second root");
        elements.push_back({Name(), {}, ""});
        Attributes(elements.back());
        if (Take("/>"))
            return;
        Require(Take(">"), "a tag without its end");
        open.push_back(elements.size() - 1);
    }

    void Attributes(XmlElement& element)
    {
        while (Take(" "))
        {
            const std::string name = Name();
            Require(Take("=\""), "an attribute without a value");
            const std::size_t end = document.find('"', place);
            Require(end != std::string::npos, "a value without its end");
            const std::string value = document.substr(place, end - place);
            Require(value.find('<') == std::string::npos, "a < in a value");
            Require(element.attributes.emplace(name, Resolved(value)).second,
                    "an attribute that stands twice");
            place = end + 1;
        }
    }

    void Text()
    {
        const std::size_t end = std::min(document.find('<', place), document.size());
        const std::string text = document.substr(place, end - place);
        if (open.empty())
            Require(text.find_first_not_of(" \n") == std::string::npos, "text outside of the root");
        else
            elements[open.back()].text += Resolved(text);
        place = end;
    }

    std::string Resolved(const std::string& text) const
    {
        static const std::map<std::string, std::string> entities = {
            {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}};
        std::string resolved;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            if (text[i] != '&')
            {
                resolved += text[i];
                continue;
            }
            const std::size_t end = text.find(';', i);
            Require(end != std::string::npos, "an & that begins no entity");
            const auto entity = entities.find(text.substr(i, end + 1 - i));
            Require(entity != entities.end(), "an unknown entity");
            resolved += entity->second;
            i = end;
        }
        return resolved;
    }

    const std::string& document;
    std::size_t place = 0;
    std::vector<XmlElement> elements;
    std::vector<std::size_t> open;
};

/// The numbers of a text, whatever else stands between them.
std::vector<double> NumbersIn(std::string text)
{
    for (char& c : text)
    {
        if (std::string("0123456789.-").find(c) == std::string::npos)
            c = ' ';
    }
    std::istringstream words(text);
    std::vector<double> numbers;
    for (std::string word; words >> word;)
        numbers.push_back(std::stod(word));
    return numbers;
}

app_Lettering LetteringOf(const XmlElement& text)
{
    app_Lettering lettering;
    lettering.size = text.Number("font-size");
    const std::string anchor = text.attributes.at("text-anchor");
    lettering.anchor = anchor == "start"    ? app_Anchor::Start
                       : anchor == "middle" ? app_Anchor::Middle
                                            : app_Anchor::End;
    lettering.isUpward = text.attributes.count("transform") > 0;
    return lettering;
}

/// Circles are drawn as two arcs between their leftmost and rightmost points.
void AddPath(app_Box& box, const std::string& path)
{
    for (std::size_t begin = 0; begin < path.size();)
    {
        const std::size_t end = path.find('Z', begin) + 1;
        const std::string loop = path.substr(begin, end - begin);
        const std::vector<double> numbers = NumbersIn(loop);
        begin = end;
        if (loop.find('A') != std::string::npos)
        {
            box.Add({numbers[0], numbers[1] - numbers[2]});
            box.Add({numbers[7], numbers[1] + numbers[2]});
            continue;
        }
        for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
            box.Add({numbers[i], numbers[i + 1]});
    }
}

} // namespace

double XmlElement::Number(const std::string& attribute) const
{
    const std::string& text = attributes.at(attribute);
    std::size_t used = 0;
    const double number = std::stod(text, &used);
    if (used != text.size() || !std::isfinite(number))
        throw std::runtime_error(name + ": " + attribute + " is " + text);
    return number;
}

std::vector<XmlElement> XmlElements(const std::string& document)
{
    return XmlReader(document).Elements();
}

std::vector<XmlElement> Named(const std::vector<XmlElement>& elements, const std::string& name)
{
    std::vector<XmlElement> found;
    std::copy_if(elements.begin(), elements.end(), std::back_inserter(found),
                 [&name](const XmlElement& element) { return element.name == name; });
    return found;
}

std::vector<std::string> TextsOf(const std::vector<XmlElement>& elements)
{
    std::vector<std::string> texts;
    for (const XmlElement& element : Named(elements, "text"))
        texts.push_back(element.text);
    return texts;
}

std::vector<XmlElement> TextsReading(const std::vector<XmlElement>& elements, const std::string& text)
{
    std::vector<XmlElement> found = Named(elements, "text");
    std::erase_if(found, [&text](const XmlElement& element) { return element.text != text; });
    return found;
}

std::vector<app_Point> PointsOf(const XmlElement& element)
{
    const std::vector<double> numbers =
        NumbersIn(element.attributes.at(element.name == "polyline" ? "points" : "d"));
    std::vector<app_Point> points;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        points.push_back({numbers[i], numbers[i + 1]});
    return points;
}

app_Box BoxOf(const XmlElement& element)
{
    app_Box box;
    if (element.name == "line")
    {
        box.Add({element.Number("x1"), element.Number("y1")});
        box.Add({element.Number("x2"), element.Number("y2")});
    }
    else if (element.name == "polyline")
    {
        for (const app_Point& point : PointsOf(element))
            box.Add(point);
    }
    else if (element.name == "path")
        AddPath(box, element.attributes.at("d"));
    else if (element.name == "circle")
    {
        const double r = element.Number("r");
        const app_Point center{element.Number("cx"), element.Number("cy")};
        box.Add(center - app_Point{r, r});
        box.Add(center + app_Point{r, r});
    }
    else if (element.name == "text")
    {
        const app_Lettering lettering = LetteringOf(element);
        const double drop = lettering.size * 0.35;
        const app_Point base{element.Number("x"), element.Number("y")};
        const app_Point at =
            lettering.isUpward ? app_Point{base.x - drop, base.y} : app_Point{base.x, base.y - drop};
        box = app_TextBox(at, element.text, lettering);
    }
    return box;
}

std::vector<XmlElement> ExpectPicture(const std::string& document)
{
    const std::vector<XmlElement> elements = XmlElements(document);
    EXPECT_EQ("svg", elements.front().name);
    EXPECT_EQ("http://www.w3.org/2000/svg", elements.front().attributes.at("xmlns"));
    for (const char* text : {"nan", "inf", "NaN"})
    {
        for (const XmlElement& element : elements)
        {
            for (const auto& [name, value] : element.attributes)
                EXPECT_EQ(std::string::npos, value.find(text))
                    << element.name << ' ' << name << ": " << value;
        }
    }
    const std::vector<double> view = NumbersIn(elements.front().attributes.at("viewBox"));
    EXPECT_EQ(4U, view.size());
    EXPECT_EQ(view[2], elements.front().Number("width"));
    EXPECT_EQ(view[3], elements.front().Number("height"));
    for (const XmlElement& element : elements)
    {
        const app_Box box = BoxOf(element);
        if (box.IsEmpty())
            continue;
        EXPECT_GE(box.Min().x, view[0]) << element.name << ' ' << element.text;
        EXPECT_GE(box.Min().y, view[1]) << element.name << ' ' << element.text;
        EXPECT_LE(box.Max().x, view[0] + view[2]) << element.name << ' ' << element.text;
        EXPECT_LE(box.Max().y, view[1] + view[3]) << element.name << ' ' << element.text;
    }
    return elements;
}

void ExpectTextsApart(const std::vector<XmlElement>& elements)
{
    const std::vector<XmlElement> texts = Named(elements, "text");
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        for (std::size_t k = i + 1; k < texts.size(); ++k)
        {
            const app_Box a = BoxOf(texts[i]);
            const app_Box b = BoxOf(texts[k]);
            const bool isApart = a.Max().x <= b.Min().x || b.Max().x <= a.Min().x || a.Max().y <= b.Min().y ||
                                 b.Max().y <= a.Min().y;
            EXPECT_TRUE(isApart) << texts[i].text << " and " << texts[k].text;
        }
    }
}
