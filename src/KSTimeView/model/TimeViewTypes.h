#pragma once

#include "vcl/classes/Properties.h"
#include "vcl/system/Set.h"

/// What the time view lets the user do and shows.
enum class TKSTVOption {
    tvoTimeSelection,
    tvoMutipleDaySelection,
    tvoItemsSelection,
    tvoShowDaysGapCover,
    tvoAutoTimeScaleAdjust,
    tvoSnapItemToItem,
    tvoSnapItemToWorkingHours,
    tvoItemsBelowMark,
    tvoItemsAboveMark,
};
using TKSTVOptions = vcl::TSet<TKSTVOption>;

/// The parts that the program draws itself in the OnDraw events.
enum class TKSTVCustomDrawOption { cdoCaptions, cdoItems, cdoDays, cdoRuler, cdoTopSpace };
using TKSTVCustomDrawOptions = vcl::TSet<TKSTVCustomDrawOption>;

enum class TKSTVDragOption {
    doBeginWork,
    doEndWork,
    doItemStart,
    doItemStartToOtherDay,
    doItemEnd,
    doItemEndToOtherDay,
    doItem,
    doItemToOtherDay,
};
using TKSTVDragOptions = vcl::TSet<TKSTVDragOption>;

enum class TKSTVHintsOption {
    hoBeginWorkDrag,
    hoEndWorkDrag,
    hoSelection,
    hoAllDaySelection,
    hoItemStartDrag,
    hoItemEndDrag,
};
using TKSTVHintsOptions = vcl::TSet<TKSTVHintsOption>;

enum class TKSTVDragMode { dmStartDrag, dmDragging, dmEndDrag };

/// How many minutes one mark of the ruler spans.
enum class TKSTVRulerMarkMinutes {
    rmm5Minutes,
    rmm6Minutes,
    rmm10Minutes,
    rmm15Minutes,
    rmm30Minutes,
    rmm60Minutes,
};

namespace timeview
{

/// Minutes of a mark; 30 for values that are none of the enumeration's.
int MarksMinutes(TKSTVRulerMarkMinutes Value);

} // namespace timeview

namespace vcl
{

template <>
struct TypeTraits<TKSTVOption> {
    static constexpr const char* SetName = "TKSTVOptions";
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TKSTVCustomDrawOption> {
    static constexpr const char* SetName = "TKSTVCustomDrawOptions";
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TKSTVDragOption> {
    static constexpr const char* SetName = "TKSTVDragOptions";
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TKSTVHintsOption> {
    static constexpr const char* SetName = "TKSTVHintsOptions";
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TKSTVRulerMarkMinutes> {
    static const TTypeInfo& Info();
};

} // namespace vcl
