#include <type_traits>

#include "KSTimeView/view/ViewFixture.h"

using testing::ElementsAreArray;

namespace
{

using TNames = std::vector<std::string>;

template <class TEnumeration>
TNames ValueNames()
{
    const vcl::TTypeInfo& Type = vcl::TypeTraits<TEnumeration>::Info();
    return {Type.ValueNames.begin(), Type.ValueNames.end()};
}

template <class TEnumeration>
constexpr int Ordinal(TEnumeration Value)
{
    return static_cast<int>(Value);
}

TEST(TimeViewEnumerations, OptionsHaveTheirNamesInOrder)
{
    using enum TKSTVOption;
    EXPECT_THAT(ValueNames<TKSTVOption>(),
                ElementsAreArray({"tvoTimeSelection", "tvoMutipleDaySelection", "tvoItemsSelection",
                                  "tvoShowDaysGapCover", "tvoAutoTimeScaleAdjust", "tvoSnapItemToItem",
                                  "tvoSnapItemToWorkingHours", "tvoItemsBelowMark", "tvoItemsAboveMark"}));
    static_assert(Ordinal(tvoTimeSelection) == 0 && Ordinal(tvoMutipleDaySelection) == 1 &&
                  Ordinal(tvoItemsSelection) == 2 && Ordinal(tvoShowDaysGapCover) == 3 &&
                  Ordinal(tvoAutoTimeScaleAdjust) == 4 && Ordinal(tvoSnapItemToItem) == 5 &&
                  Ordinal(tvoSnapItemToWorkingHours) == 6 && Ordinal(tvoItemsBelowMark) == 7 &&
                  Ordinal(tvoItemsAboveMark) == 8);
}

TEST(TimeViewEnumerations, CustomDrawOptionsHaveTheirNamesInOrder)
{
    using enum TKSTVCustomDrawOption;
    EXPECT_THAT(ValueNames<TKSTVCustomDrawOption>(),
                ElementsAreArray({"cdoCaptions", "cdoItems", "cdoDays", "cdoRuler", "cdoTopSpace"}));
    static_assert(Ordinal(cdoCaptions) == 0 && Ordinal(cdoItems) == 1 && Ordinal(cdoDays) == 2 &&
                  Ordinal(cdoRuler) == 3 && Ordinal(cdoTopSpace) == 4);
}

TEST(TimeViewEnumerations, DragOptionsHaveTheirNamesInOrder)
{
    using enum TKSTVDragOption;
    EXPECT_THAT(ValueNames<TKSTVDragOption>(),
                ElementsAreArray({"doBeginWork", "doEndWork", "doItemStart", "doItemStartToOtherDay",
                                  "doItemEnd", "doItemEndToOtherDay", "doItem", "doItemToOtherDay"}));
    static_assert(Ordinal(doBeginWork) == 0 && Ordinal(doEndWork) == 1 && Ordinal(doItemStart) == 2 &&
                  Ordinal(doItemStartToOtherDay) == 3 && Ordinal(doItemEnd) == 4 &&
                  Ordinal(doItemEndToOtherDay) == 5 && Ordinal(doItem) == 6 &&
                  Ordinal(doItemToOtherDay) == 7);
}

TEST(TimeViewEnumerations, HintsOptionsHaveTheirNamesInOrder)
{
    using enum TKSTVHintsOption;
    EXPECT_THAT(ValueNames<TKSTVHintsOption>(),
                ElementsAreArray({"hoBeginWorkDrag", "hoEndWorkDrag", "hoSelection", "hoAllDaySelection",
                                  "hoItemStartDrag", "hoItemEndDrag"}));
    static_assert(Ordinal(hoBeginWorkDrag) == 0 && Ordinal(hoEndWorkDrag) == 1 && Ordinal(hoSelection) == 2 &&
                  Ordinal(hoAllDaySelection) == 3 && Ordinal(hoItemStartDrag) == 4 &&
                  Ordinal(hoItemEndDrag) == 5);
}

TEST(TimeViewEnumerations, MarkMinutesAndDragModesHaveTheirPlaces)
{
    using enum TKSTVRulerMarkMinutes;
    EXPECT_THAT(ValueNames<TKSTVRulerMarkMinutes>(),
                ElementsAreArray({"rmm5Minutes", "rmm6Minutes", "rmm10Minutes", "rmm15Minutes",
                                  "rmm30Minutes", "rmm60Minutes"}));
    static_assert(Ordinal(rmm5Minutes) == 0 && Ordinal(rmm6Minutes) == 1 && Ordinal(rmm10Minutes) == 2 &&
                  Ordinal(rmm15Minutes) == 3 && Ordinal(rmm30Minutes) == 4 && Ordinal(rmm60Minutes) == 5);
    static_assert(Ordinal(TKSTVDragMode::dmStartDrag) == 0 && Ordinal(TKSTVDragMode::dmDragging) == 1 &&
                  Ordinal(TKSTVDragMode::dmEndDrag) == 2);
}

TEST(TimeViewEnumerations, AMarkHasTheMinutesOfItsNameAndOtherwiseThirty)
{
    using enum TKSTVRulerMarkMinutes;
    const auto Minutes = [](TKSTVRulerMarkMinutes Value) { return timeview::MarksMinutes(Value); };
    EXPECT_EQ(Minutes(rmm5Minutes), 5);
    EXPECT_EQ(Minutes(rmm6Minutes), 6);
    EXPECT_EQ(Minutes(rmm10Minutes), 10);
    EXPECT_EQ(Minutes(rmm15Minutes), 15);
    EXPECT_EQ(Minutes(rmm30Minutes), 30);
    EXPECT_EQ(Minutes(rmm60Minutes), 60);
    EXPECT_EQ(Minutes(static_cast<TKSTVRulerMarkMinutes>(6)), 30);
    EXPECT_EQ(Minutes(static_cast<TKSTVRulerMarkMinutes>(-1)), 30);
}

// What a program's handlers are declared with.

template <class TEvent, class... TArguments>
constexpr bool Takes = std::is_same_v<TEvent, vcl::TEvent<void(TArguments...)>>;

using TSender = vcl::TObject*;
using TDay = TKSTimeviewDay*;
using TItem = TKSTimeViewItem*;
using TMoment = vcl::TDateTime;
using TRectangle = const vcl::TRect&;
using T = TKSTimeView;

static_assert(std::is_same_v<vcl::TDateTime, double> && std::is_same_v<vcl::TTime, double>);
static_assert(Takes<TKSTVDayChangedEvent, TSender, TDay>);
static_assert(Takes<TKSTVItemNotifyEvent, TSender, TItem>);
static_assert(Takes<TKSTVItemChangedEvent, TSender, TItem>);
static_assert(Takes<TKSTVDayDragEvent, TSender, TDay, TKSTVDragMode>);
static_assert(Takes<TKSTVItemDragEvent, TSender, TItem, TKSTVDragMode>);
static_assert(Takes<TKSTVSelectionChangedEvent, TSender, TMoment, TMoment>);
static_assert(Takes<TKSTVSelectionHintEvent, TSender, TMoment, TMoment, vcl::AnsiString&, int&>);
static_assert(Takes<TKSTVItemDragHintEvent, TSender, TItem, TMoment, TMoment, vcl::AnsiString&, int&>);
static_assert(
    Takes<TKSTVWorkingHoursDragHintEvent, TSender, vcl::TTime, vcl::TTime, TDay, vcl::AnsiString&, int&>);
static_assert(Takes<TKSTVDrawCaptionEvent, TSender, vcl::TCanvas*, TRectangle, TDay>);
static_assert(Takes<TKSTVDrawItemEvent, TSender, vcl::TCanvas*, TItem, TRectangle>);
static_assert(Takes<TKSTVDrawRulerEvent, TSender, vcl::TCanvas*, TRectangle, int>);
static_assert(Takes<TKSTVDrawDayEvent, TSender, vcl::TCanvas*, TDay, TRectangle, int>);
static_assert(Takes<TKSTVDrawTopSpaceEvent, TSender, vcl::TCanvas*, TDay, TRectangle>);
static_assert(Takes<TKSTVEditingItemEvent, TSender, TItem, bool&>);
static_assert(Takes<TKSTVEditedItemEvent, TSender, TItem, vcl::AnsiString&>);
static_assert(Takes<TKSTVCreateOnTypeEvent, TSender, TMoment, TMoment, bool, bool&>);
static_assert(Takes<TKSTVGetEditRectEvent, TSender, TDay, TItem, vcl::TRect&>);
static_assert(Takes<TKSTVItemToAllDayEvent, TSender, TItem, bool&>);

template <class TEvent>
constexpr bool Is(TEvent T::*)
{
    return true;
}

static_assert(Is<TKSTVDayChangedEvent>(&T::OnChangeBeginWork) &&
              Is<TKSTVDayChangedEvent>(&T::OnChangeEndWork) && Is<TKSTVDayChangedEvent>(&T::OnNewDay));
static_assert(Is<TKSTVItemNotifyEvent>(&T::OnDeletion) && Is<TKSTVItemNotifyEvent>(&T::OnCreatedOnType));
static_assert(Is<vcl::TNotifyEvent>(&T::OnTimeScaleChanged));
static_assert(Is<TKSTVDayDragEvent>(&T::OnDragBeginWork) && Is<TKSTVDayDragEvent>(&T::OnDragEndWork));
static_assert(Is<TKSTVSelectionChangedEvent>(&T::OnSelectionChanged) &&
              Is<TKSTVSelectionChangedEvent>(&T::OnAllDaySelectionChanged));
static_assert(Is<TKSTVItemDragEvent>(&T::OnDragItemStart) && Is<TKSTVItemDragEvent>(&T::OnDragItemEnd) &&
              Is<TKSTVItemDragEvent>(&T::OnDragItem));
static_assert(Is<TKSTVItemChangedEvent>(&T::OnItemClick) && Is<TKSTVItemChangedEvent>(&T::OnItemDblClick));
static_assert(Is<TKSTVSelectionHintEvent>(&T::OnSelectionHint) &&
              Is<TKSTVSelectionHintEvent>(&T::OnAllDaySelectionHint));
static_assert(Is<TKSTVItemDragHintEvent>(&T::OnItemStartDragHint) &&
              Is<TKSTVItemDragHintEvent>(&T::OnItemEndDragHint));
static_assert(Is<TKSTVWorkingHoursDragHintEvent>(&T::OnBeginWorkDragHint) &&
              Is<TKSTVWorkingHoursDragHintEvent>(&T::OnEndWorkDragHint));
static_assert(Is<TKSTVDrawCaptionEvent>(&T::OnDrawCaption) && Is<TKSTVDrawItemEvent>(&T::OnDrawItem) &&
              Is<TKSTVDrawRulerEvent>(&T::OnDrawRuler) && Is<TKSTVDrawDayEvent>(&T::OnDrawDay) &&
              Is<TKSTVDrawTopSpaceEvent>(&T::OnDrawTopSpace));
static_assert(Is<TKSTVEditingItemEvent>(&T::OnEditingItem) && Is<TKSTVEditedItemEvent>(&T::OnEditedItem));
static_assert(Is<TKSTVCreateOnTypeEvent>(&T::OnCreateOnType));
static_assert(Is<TKSTVGetEditRectEvent>(&T::OnGetEditRect));
static_assert(Is<TKSTVItemToAllDayEvent>(&T::OnDragItemToAllDay) &&
              Is<TKSTVItemToAllDayEvent>(&T::OnDragItemFromAllDay));

} // namespace
