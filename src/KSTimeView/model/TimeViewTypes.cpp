#include "KSTimeView/model/TimeViewTypes.h"

namespace timeview
{

int MarksMinutes(TKSTVRulerMarkMinutes Value)
{
    switch (Value) {
    case TKSTVRulerMarkMinutes::rmm5Minutes:
        return 5;
    case TKSTVRulerMarkMinutes::rmm6Minutes:
        return 6;
    case TKSTVRulerMarkMinutes::rmm10Minutes:
        return 10;
    case TKSTVRulerMarkMinutes::rmm15Minutes:
        return 15;
    case TKSTVRulerMarkMinutes::rmm30Minutes:
        return 30;
    case TKSTVRulerMarkMinutes::rmm60Minutes:
        return 60;
    }
    return 30;
}

} // namespace timeview

namespace vcl
{

const TTypeInfo& TypeTraits<TKSTVOption>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TKSTVOption", {"tvoTimeSelection", "tvoMutipleDaySelection", "tvoItemsSelection",
                        "tvoShowDaysGapCover", "tvoAutoTimeScaleAdjust", "tvoSnapItemToItem",
                        "tvoSnapItemToWorkingHours", "tvoItemsBelowMark", "tvoItemsAboveMark"});
    return Type;
}

const TTypeInfo& TypeTraits<TKSTVCustomDrawOption>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TKSTVCustomDrawOption", {"cdoCaptions", "cdoItems", "cdoDays", "cdoRuler", "cdoTopSpace"});
    return Type;
}

const TTypeInfo& TypeTraits<TKSTVDragOption>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TKSTVDragOption", {"doBeginWork", "doEndWork", "doItemStart", "doItemStartToOtherDay", "doItemEnd",
                            "doItemEndToOtherDay", "doItem", "doItemToOtherDay"});
    return Type;
}

const TTypeInfo& TypeTraits<TKSTVHintsOption>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TKSTVHintsOption", {"hoBeginWorkDrag", "hoEndWorkDrag", "hoSelection",
                                             "hoAllDaySelection", "hoItemStartDrag", "hoItemEndDrag"});
    return Type;
}

const TTypeInfo& TypeTraits<TKSTVRulerMarkMinutes>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TKSTVRulerMarkMinutes", {"rmm5Minutes", "rmm6Minutes", "rmm10Minutes",
                                                  "rmm15Minutes", "rmm30Minutes", "rmm60Minutes"});
    return Type;
}

} // namespace vcl
