#include <algorithm>

#include "KSTimeView/view/ViewFixture.h"
#include "vcl/controls/CustomControl.h"

using testing::ElementsAreArray;

namespace
{

using vcl::TPropertyInfo;
using TNames = std::vector<std::string>;

TNames PublishedBy(const vcl::TClass& Class)
{
    TNames Result;
    for (const TPropertyInfo* Property : vcl::PublishedProperties(Class))
        Result.push_back(Property->Name);
    return Result;
}

const TNames OwnProperties = {"RulerFont",
                              "Images",
                              "VScrollPosition",
                              "Options",
                              "HintsOptions",
                              "CustomDrawOptions",
                              "CustomEditing",
                              "DragOptions",
                              "RulerMarkHeight",
                              "DaysGapColor",
                              "DaysGapCoverColor",
                              "DaysGapWidth",
                              "TimeLinesColor",
                              "CaptionHeight",
                              "DaysCount",
                              "ShowRuler",
                              "ShowTopSpace",
                              "ShowTimeLines",
                              "RulerWidth",
                              "RulerColor",
                              "RulerMarksColor",
                              "RulerMarkMinutes",
                              "Date",
                              "SelectResolution",
                              "ItemDragResolution",
                              "ItemSelectionColor",
                              "TimeSelectionColor",
                              "AllDaySelectionColor",
                              "WorkingHoursColor",
                              "ItemsSnap",
                              "MinItemLength",
                              "MinWorkingHours",
                              "ItemsAboveMark",
                              "ItemsBelowMark",
                              "TopSpaceColor",
                              "PrivateImageIndex",
                              "ReminderImageIndex",
                              "BorderStyle",
                              "ReadOnly",
                              "SmoothScroll",
                              "CreateOnType",
                              "AllDayItemSelectionColor",
                              "LongCaptionFormat",
                              "MediumCaptionFormat",
                              "ShortCaptionFormat"};

const TNames OwnEvents = {"OnChangeBeginWork",
                          "OnChangeEndWork",
                          "OnNewDay",
                          "OnDeletion",
                          "OnTimeScaleChanged",
                          "OnDragBeginWork",
                          "OnDragEndWork",
                          "OnSelectionChanged",
                          "OnAllDaySelectionChanged",
                          "OnDragItemStart",
                          "OnDragItemEnd",
                          "OnDragItem",
                          "OnItemClick",
                          "OnItemDblClick",
                          "OnSelectionHint",
                          "OnAllDaySelectionHint",
                          "OnItemStartDragHint",
                          "OnItemEndDragHint",
                          "OnBeginWorkDragHint",
                          "OnEndWorkDragHint",
                          "OnDrawCaption",
                          "OnDrawItem",
                          "OnDrawRuler",
                          "OnDrawDay",
                          "OnDrawTopSpace",
                          "OnEditingItem",
                          "OnEditedItem",
                          "OnCreateOnType",
                          "OnCreatedOnType",
                          "OnGetEditRect",
                          "OnDragItemToAllDay",
                          "OnDragItemFromAllDay"};

const TNames Inherited = {"Align",          "Anchors",
                          "BiDiMode",       "Color",
                          "Constraints",    "Ctl3D",
                          "DockSite",       "DragCursor",
                          "DragKind",       "DragMode",
                          "Enabled",        "ImeMode",
                          "ImeName",        "Font",
                          "ParentColor",    "ParentCtl3D",
                          "ParentFont",     "ParentShowHint",
                          "ParentBiDiMode", "PopupMenu",
                          "ShowHint",       "TabOrder",
                          "TabStop",        "UseDockManager",
                          "Visible",        "OnCanResize",
                          "OnClick",        "OnConstrainedResize",
                          "OnDblClick",     "OnDockDrop",
                          "OnDockOver",     "OnDragDrop",
                          "OnDragOver",     "OnEndDock",
                          "OnEndDrag",      "OnEnter",
                          "OnExit",         "OnGetSiteInfo",
                          "OnKeyDown",      "OnKeyPress",
                          "OnKeyUp",        "OnMouseDown",
                          "OnMouseMove",    "OnMouseUp",
                          "OnMouseWheel",   "OnMouseWheelDown",
                          "OnMouseWheelUp", "OnResize",
                          "OnStartDock",    "OnStartDrag",
                          "OnUnDock"};

/// In the order of streaming, which form files keep.
TEST(TimeViewRows, AreTheseAfterThoseOfEveryControlAndNoOthers)
{
    TNames Expected = PublishedBy(vcl::TCustomControl::StaticClass());
    for (const TNames* const Group : {&OwnProperties, &OwnEvents, &Inherited})
        Expected.insert(Expected.end(), Group->begin(), Group->end());
    EXPECT_THAT(PublishedBy(TKSTimeView::StaticClass()), ElementsAreArray(Expected));
}

TEST(TimeViewRows, HaveTheTypesThatTheInspectorShows)
{
    const std::map<std::string, TNames> Expected = {
        {"TFont", {"RulerFont"}},
        {"TCustomImageList", {"Images"}},
        {"TBitmap", {"ItemsAboveMark", "ItemsBelowMark"}},
        {"TDate", {"Date"}},
        {"TBorderStyle", {"BorderStyle"}},
        {"TKSTVOptions", {"Options"}},
        {"TKSTVHintsOptions", {"HintsOptions"}},
        {"TKSTVCustomDrawOptions", {"CustomDrawOptions"}},
        {"TKSTVDragOptions", {"DragOptions"}},
        {"TKSTVRulerMarkMinutes", {"RulerMarkMinutes"}},
        {"Boolean",
         {"CustomEditing", "ShowRuler", "ShowTopSpace", "ShowTimeLines", "ReadOnly", "SmoothScroll",
          "CreateOnType"}},
        {"TColor",
         {"DaysGapColor", "DaysGapCoverColor", "TimeLinesColor", "RulerColor", "RulerMarksColor",
          "ItemSelectionColor", "TimeSelectionColor", "AllDaySelectionColor", "WorkingHoursColor",
          "TopSpaceColor", "AllDayItemSelectionColor", "Color"}},
        {"Integer",
         {"VScrollPosition", "RulerMarkHeight", "DaysGapWidth", "CaptionHeight", "DaysCount", "RulerWidth",
          "SelectResolution", "ItemDragResolution", "ItemsSnap", "MinItemLength", "MinWorkingHours",
          "PrivateImageIndex", "ReminderImageIndex"}},
        {"string", {"LongCaptionFormat", "MediumCaptionFormat", "ShortCaptionFormat"}},
    };
    std::size_t Count = 0;
    for (const auto& [Type, Names] : Expected)
        for (const std::string& Name : Names) {
            ++Count;
            const TPropertyInfo* const Property = vcl::FindProperty(TKSTimeView::StaticClass(), Name);
            ASSERT_NE(Property, nullptr) << Name;
            EXPECT_EQ(Property->Type->DisplayName(), Type) << Name;
        }
    EXPECT_EQ(Count, OwnProperties.size() + 1) << "and the inherited colour";
}

TEST(TimeViewRows, OfObjectsTextsAndSetsHaveNoDefault)
{
    for (const char* const Name :
         {"RulerFont", "Images", "VScrollPosition", "Options", "HintsOptions", "CustomDrawOptions",
          "DragOptions", "Date", "ItemsAboveMark", "ItemsBelowMark", "ReadOnly", "LongCaptionFormat",
          "MediumCaptionFormat", "ShortCaptionFormat"})
        EXPECT_EQ(vcl::FindProperty(TKSTimeView::StaticClass(), Name)->Default, std::nullopt) << Name;
}

TEST(TimeViewRows, OfEventsAreEvents)
{
    for (const std::string& Name : OwnEvents)
        EXPECT_EQ(vcl::FindProperty(TKSTimeView::StaticClass(), Name)->Type->Kind, vcl::TTypeKind::Method)
            << Name;
}

} // namespace
