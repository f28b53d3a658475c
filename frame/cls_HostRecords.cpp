#include "cls_HostRecords.h"

namespace
{

/// Takes the members of an object one by one, and refuses what nobody takes.
class Members
{
public:
    explicit Members(const cls_Value& value) : members(value.AsObject())
    {
        if (!members)
            cls_RaiseUnexpected("an object", value);
    }

    /// Runs `act` on the member of this name, if it is there.
    template <class Act>
    void Take(const char* name, Act act)
    {
        names.push_back(name);
        for (const auto& [given, member] : *members)
        {
            if (given != name)
                continue;
            try
            {
                act(member);
            }
            catch (const cls_ValueError& error)
            {
                throw error.Within(name);
            }
        }
    }

    /// Throws if there is a member that was not asked for.
    void End() const
    {
        for (const auto& [given, member] : *members)
        {
            if (!IsTaken(given))
                throw cls_ValueError(given, "no such member; there are " + KnownNames());
        }
    }

private:
    bool IsTaken(const std::string& name) const
    {
        for (const char* taken : names)
        {
            if (name == taken)
                return true;
        }
        return false;
    }

    std::string KnownNames() const
    {
        std::string text;
        for (const char* name : names)
            text += (text.empty() ? "" : ", ") + std::string(name);
        return text;
    }

    const cls_Value::Object* members;
    std::vector<const char*> names;
};

cow_String TextWithoutNull(const cls_Value& value)
{
    cow_String text;
    cls_KindOf<cow_String>::kind.Import(&text, value);
    return text;
}

cls_Value ValueOfPoint(const gsl_Point& point)
{
    return cls_Value::Array{cls_ValueOfDouble(point.x), cls_ValueOfDouble(point.y),
                            cls_ValueOfDouble(point.z)};
}

double Coordinate(const cls_Value::Array& coordinates, std::size_t position)
{
    try
    {
        return cls_DoubleOfValue(coordinates[position]);
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within('[' + std::to_string(position) + ']');
    }
}

gsl_Point PointOfValue(const cls_Value& value)
{
    const cls_Value::Array& coordinates = cls_ArrayOfValue(value);
    if (coordinates.size() != 3)
        cls_RaiseUnexpected("an array of three numbers", value);
    return {Coordinate(coordinates, 0), Coordinate(coordinates, 1), Coordinate(coordinates, 2)};
}

} // namespace

cls_Value cls_ExportRecord(const rgnC_Region& region)
{
    return cls_Value::Object{
        {"name", region.Name().CString()}, {"flag", region.Flag()}, {"kinds", region.Kinds()}};
}

void cls_ImportRecord(rgnC_Region& region, const cls_Value& value)
{
    Members members(value);
    cow_String name;
    int flag = 0;
    int kinds = 0;
    members.Take("name", [&](const cls_Value& member) { name = TextWithoutNull(member); });
    members.Take("flag", [&](const cls_Value& member) { flag = cls_IntOfValue(member); });
    members.Take("kinds", [&](const cls_Value& member) { kinds = cls_IntOfValue(member); });
    members.End();
    region = rgnC_Region(name, flag, kinds);
}

cls_Value cls_ExportRecord(const rgnC_RegionPair& pair)
{
    cls_Value::Object members{{"first", cls_ExportRecord(pair.First())},
                              {"second", cls_ExportRecord(pair.Second())}};
    if (pair.FirstFlag())
        members.emplace_back("firstFlag", true);
    if (pair.SecondFlag())
        members.emplace_back("secondFlag", true);
    return members;
}

void cls_ImportRecord(rgnC_RegionPair& pair, const cls_Value& value)
{
    Members members(value);
    rgnC_Region first;
    rgnC_Region second;
    bool firstFlag = false;
    bool secondFlag = false;
    members.Take("first", [&](const cls_Value& member) { cls_ImportRecord(first, member); });
    members.Take("second", [&](const cls_Value& member) { cls_ImportRecord(second, member); });
    members.Take("firstFlag", [&](const cls_Value& member) { firstFlag = cls_BoolOfValue(member); });
    members.Take("secondFlag", [&](const cls_Value& member) { secondFlag = cls_BoolOfValue(member); });
    members.End();
    pair = rgnC_RegionPair(first, second, firstFlag, secondFlag);
}

cls_Value cls_ExportRecord(const dtmC_DatumRef& datum)
{
    return cls_Value::Object{{"name", datum.Name().CString()}};
}

void cls_ImportRecord(dtmC_DatumRef& datum, const cls_Value& value)
{
    Members members(value);
    cow_String name;
    members.Take("name", [&](const cls_Value& member) { name = TextWithoutNull(member); });
    members.End();
    datum = dtmC_DatumRef(name);
}

cls_Value cls_ExportRecord(const gsl_Dot& dot)
{
    return cls_Value::Object{{"point", ValueOfPoint(dot.GetPoint())}};
}

void cls_ImportRecord(gsl_Dot& dot, const cls_Value& value)
{
    Members members(value);
    gsl_Point point;
    members.Take("point", [&](const cls_Value& member) { point = PointOfValue(member); });
    members.End();
    dot = gsl_Dot(point);
}

cls_Value cls_ExportRecord(const gsl_ModelSegment& segment)
{
    return cls_Value::Object{{"from", ValueOfPoint(segment.From())}, {"to", ValueOfPoint(segment.To())}};
}

void cls_ImportRecord(gsl_ModelSegment& segment, const cls_Value& value)
{
    Members members(value);
    gsl_Point from;
    gsl_Point to;
    members.Take("from", [&](const cls_Value& member) { from = PointOfValue(member); });
    members.Take("to", [&](const cls_Value& member) { to = PointOfValue(member); });
    members.End();
    segment = gsl_ModelSegment(gsl_Dot(from), gsl_Dot(to));
}

cls_Value cls_ExportRecord(const mdl_PropertyTable& table)
{
    return cls_ExportCollection(cls_xp2DArrayDouble(table.ConstGetData()));
}

void cls_ImportRecord(mdl_PropertyTable& table, const cls_Value& value)
{
    cls_xp2DArrayDouble data;
    cls_ImportCollection(data, value);
    table = mdl_PropertyTable(data);
}
