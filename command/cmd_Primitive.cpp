#include "cmd_Primitive.h"

#include "cmd_Error.h"
#include "omu_Arguments.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimEnumBase.h"
#include "omu_PrimInt.h"
#include "omu_PrimList.h"
#include "omu_PrimString.h"

namespace
{

cmd_Value::Elements ElementsOf(const omu_PrimSequence& sequence)
{
    cmd_Value::Elements elements;
    for (int i = 0; i < sequence.Count(); ++i)
        elements.push_back(cmd_ValueOfPrimitive(sequence[i]));
    return elements;
}

} // namespace

cmd_Value cmd_ValueOfPrimitive(const omu_Primitive& primitive)
{
    switch (primitive.Kind())
    {
    case omu_PrimKindEnm::None:
        break;
    case omu_PrimKindEnm::String:
        return static_cast<const omu_PrimString&>(primitive).Value().CString();
    case omu_PrimKindEnm::Enum:
        return cmd_Value::Symbol{static_cast<const omu_PrimEnumBase&>(primitive).GetString().CString()};
    case omu_PrimKindEnm::Bool:
        return static_cast<const omu_PrimBool&>(primitive).Value();
    case omu_PrimKindEnm::Int:
        return static_cast<const omu_PrimInt&>(primitive).Value();
    case omu_PrimKindEnm::Double:
        return static_cast<const omu_PrimDouble&>(primitive).Value();
    case omu_PrimKindEnm::Tuple:
        return cmd_Value::Tuple{ElementsOf(static_cast<const omu_PrimSequence&>(primitive))};
    case omu_PrimKindEnm::List:
        return cmd_Value::List{ElementsOf(static_cast<const omu_PrimSequence&>(primitive))};
    }
    return cmd_Value();
}

cmd_Arguments cmd_ArgumentsOfPrimitives(const omu_Arguments& arguments)
{
    if (!arguments.IsEmpty())
        throw cmd_Error("expected arguments by keyword, as smooth=0.25, found " +
                        cmd_ValueOfPrimitive(arguments[0]).Summary());
    cmd_Arguments result;
    for (int i = 0; i < arguments.KeywordCount(); ++i)
        result.emplace_back(arguments.Keyword(i).CString(), cmd_ValueOfPrimitive(arguments.KeywordValue(i)));
    return result;
}
