#pragma once

#include "cls_Description.h"

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

/// Makes values that fit attributes, whatever their kind, from a seed: the same seed gives the same values.
class RandomValue
{
public:
    explicit RandomValue(std::uint32_t seed) : engine(seed) {}

    /// An object of this class as a value, "class" first.
    cls_Value ObjectOf(const cls_Description& description, int depth = 0)
    {
        cls_Value::Object members;
        members.emplace_back("class", description.Name());
        for (const cls_Attribute* attribute : description.AllAttributes())
            members.emplace_back(attribute->field.Name().CString(), Of(*attribute->kind, depth));
        return members;
    }

    cls_Value Of(const cls_Kind& kind, int depth)
    {
        using enum cls_KindEnm;
        switch (kind.Id())
        {
        case Int:
            return Integer();
        case Double:
            return Number();
        case String:
            return Text();
        case Bool:
            return Chance(2);
        case Enum:
            return kind.Enum()->rows[Below(kind.Enum()->rowCount)].name;
        case Optional:
            return Chance(3) || depth > 2 ? cls_Value() : Descendant(*kind.Of(), depth + 1);
        case Object:
            return ObjectOf(*kind.Of(), depth + 1);
        case ListInt:
            return List([this] { return cls_Value(Integer()); });
        case ListDouble:
            return List([this] { return Number(); });
        case ListBool:
            return List([this] { return cls_Value(Chance(2)); });
        case ListString:
            return List([this] { return cls_Value(Text()); });
        case ListObject:
            return List([this, &kind, depth] { return Descendant(*kind.Of(), depth + 1); });
        case MapObject:
            return Map(false, [this, &kind, depth] { return Descendant(*kind.Of(), depth + 1); });
        case MapObjectInt:
            return Map(true, [this, &kind, depth] { return Descendant(*kind.Of(), depth + 1); });
        case Array2D:
            return Array();
        case MapArray2D:
            return Map(false, [this] { return Array(); });
        case MapFloat:
            return Map(false, [this] { return cls_Value(static_cast<double>(Below(1000)) / 8.0); });
        case PropertyTable:
            return Array();
        case Table:
            return cls_Value::Object{{"table", Array()}, {"allowEmptyFirstRow", Chance(2)}};
        case Pending:
            return cls_Value();
        case Region:
            return RegionValue();
        case RegionList:
            return List([this] { return RegionValue(); });
        case RegionPairList:
            return List([this] { return RegionPairValue(); });
        case Datum:
            return cls_Value::Object{{"name", Text()}};
        case Segment:
            return SegmentValue();
        case SegmentList:
            return List([this] { return SegmentValue(); });
        case Dot:
            return cls_Value::Object{{"point", Point()}};
        default:
            ADD_FAILURE() << "no values for attributes of kind " << kind.Name();
            return cls_Value();
        }
    }

private:
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(engine); }

    bool Chance(int oneIn) { return Below(oneIn) == 0; }

    int Integer()
    {
        const int special[] = {0, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
        return Chance(3) ? special[Below(4)] : Below(100000) - 50000;
    }

    cls_Value Number()
    {
        const double special[] = {0.0, 1.7976931348623157e308, -1.7976931348623157e308, 5e-324, 0.1, 1e300};
        const char* const texts[] = {"NaN", "Infinity", "-Infinity"};
        if (Chance(8))
            return texts[Below(3)];
        return Chance(3) ? special[Below(6)] : std::normal_distribution<double>(0.0, 1e3)(engine);
    }

    std::string Text()
    {
        const char* const special[] = {"", " ", "Größe 1", "a'b\"c", "line\nfeed", "%s%d", "123"};
        if (Chance(2))
            return special[Below(7)];
        return std::string(static_cast<std::size_t>(Below(40)), static_cast<char>('a' + Below(26)));
    }

    template <class Make>
    cls_Value List(Make make)
    {
        cls_Value::Array values;
        for (int count = Chance(20) ? 300 : Below(6); count > 0; --count)
            values.push_back(make());
        return values;
    }

    /// Members in ascending order of names, as a map gives them back.
    template <class Make>
    cls_Value Map(bool numbers, Make make)
    {
        cls_Value::Object members;
        const int count = Below(5);
        for (int i = 0; i < count; ++i)
            members.emplace_back(numbers ? std::to_string(i * 3 - 2) : "name " + std::to_string(i), make());
        return members;
    }

    cls_Value Array()
    {
        const int columns = 1 + Below(4);
        cls_Value::Array rows;
        for (int row = Below(30); row > 0; --row)
        {
            cls_Value::Array values;
            for (int column = 0; column < columns; ++column)
                values.push_back(Number());
            rows.emplace_back(std::move(values));
        }
        return rows;
    }

    cls_Value RegionValue()
    {
        return cls_Value::Object{{"name", Text()}, {"flag", Integer()}, {"kinds", Integer()}};
    }

    cls_Value RegionPairValue()
    {
        cls_Value::Object members{{"first", RegionValue()}, {"second", RegionValue()}};
        if (Chance(2))
            members.emplace_back("firstFlag", true);
        if (Chance(2))
            members.emplace_back("secondFlag", true);
        return members;
    }

    cls_Value SegmentValue() { return cls_Value::Object{{"from", Point()}, {"to", Point()}}; }

    cls_Value Point() { return cls_Value::Array{Number(), Number(), Number()}; }

    cls_Value Descendant(const cls_Description& root, int depth)
    {
        std::vector<const cls_Description*> candidates;
        for (const cls_Description* description : cls_Descriptions().All())
        {
            if (!description->IsAbstract() && description->IsA(root.Id()))
                candidates.push_back(description);
        }
        return ObjectOf(*candidates[static_cast<std::size_t>(Below(static_cast<int>(candidates.size())))],
                        depth);
    }

    std::mt19937 engine;
};
