// The table of published properties against the values that programs and forms rely on.

#include "KSTreeView/view/TreeViewFixture.h"
#include "support/PropertyLoop.h"

namespace
{

using vcl::TPropertyInfo;

class TreePublished : public TTreeViewTest
{
protected:
    static const TPropertyInfo& Row(const char* Name)
    {
        const TPropertyInfo* const Found = vcl::FindProperty(TKSTreeView::StaticClass(), Name);
        if (!Found)
            throw std::runtime_error(std::string("no property ") + Name);
        return *Found;
    }
    static std::int64_t Get(const TKSTreeView& View, const char* Name)
    {
        return std::get<std::int64_t>(Row(Name).Get(View));
    }
};

template <auto Getter>
std::int64_t Read(const TKSTreeView& View)
{
    return static_cast<std::int64_t>((View.*Getter)());
}

/// A property of the view's own.
struct TOwnRow {
    const char* Name;
    const char* Type;
    std::int64_t Default; // which the constructor sets too
    std::int64_t Another;
    std::int64_t (*Read)(const TKSTreeView& View);
};

using T = TCustomKSTreeView;

const TOwnRow OwnRows[] = {
    {"ShowButtons", "Boolean", 1, 0, &Read<&T::GetShowButtons>},
    {"BorderStyle", "TBorderStyle", 1, 0, &Read<&T::GetBorderStyle>},
    {"ShowLines", "Boolean", 1, 0, &Read<&T::GetShowLines>},
    {"ShowRoot", "Boolean", 1, 0, &Read<&T::GetShowRoot>},
    {"NodeWidth", "Integer", 60, 61, &Read<&T::GetNodeWidth>},
    {"NodeHeight", "Integer", 30, 31, &Read<&T::GetNodeHeight>},
    {"NodeColor", "TColor", 65535, 1, &Read<&T::GetNodeColor>},
    {"NodePenColor", "TColor", 8421504, 2, &Read<&T::GetNodePenColor>},
    {"NodeImageSide", "TKSTVNodeImageSide", 0, 1, &Read<&T::GetNodeImageSide>},
    {"NodeStyle", "TKSTVNodeStyle", 1, 0, &Read<&T::GetNodeStyle>},
    {"ButtonSize", "Integer", 5, 12, &Read<&T::GetButtonSize>},
    {"ButtonColor", "TColor", 16777215, 3, &Read<&T::GetButtonColor>},
    {"SelectedNodeColor", "TColor", 255, 4, &Read<&T::GetSelectedNodeColor>},
    {"HiddenSelectedNodeColor", "TColor", -2147483633, 5, &Read<&T::GetHiddenSelectedNodeColor>},
    {"LineStyle", "TPenStyle", 0, 2, &Read<&T::GetLineStyle>},
    {"LineColor", "TColor", 16711680, 6, &Read<&T::GetLineColor>},
    {"VertSpacing", "Integer", 20, 32, &Read<&T::GetVertSpacing>},
    {"HorzSpacing", "Integer", 20, 33, &Read<&T::GetHorzSpacing>},
    {"RightToLeft", "Boolean", 0, 1, &Read<&T::GetRightToLeft>},
    {"DefaultDrawing", "Boolean", 1, 0, &Read<&T::GetDefaultDrawing>},
    {"ReadOnly", "Boolean", 0, 1, &Read<&T::GetReadOnly>},
    {"HideSelection", "Boolean", 1, 0, &Read<&T::GetHideSelection>},
};

TEST_F(TreePublished, EveryOwnPropertyHasItsTypeItsDefaultAndThatInitially)
{
    const auto* const View = vcl::New<TKSTreeView>(Form);
    for (const TOwnRow& Own : OwnRows) {
        SCOPED_TRACE(Own.Name);
        EXPECT_EQ(Row(Own.Name).Type->DisplayName(), Own.Type);
        EXPECT_EQ(Row(Own.Name).Default, Own.Default);
        EXPECT_EQ(Get(*View, Own.Name), Own.Default);
        EXPECT_EQ(Own.Read(*View), Own.Default);
        EXPECT_NE(Row(Own.Name).Set, nullptr);
        EXPECT_EQ(Row(Own.Name).IsStored, nullptr);
    }
}

TEST_F(TreePublished, EveryOwnPropertyReachesItsOwnFieldAndNoOther)
{
    for (const TOwnRow& Own : OwnRows) {
        SCOPED_TRACE(Own.Name);
        auto* const View = vcl::New<TKSTreeView>(Form);
        Row(Own.Name).Set(*View, Own.Another);
        for (const TOwnRow& Each : OwnRows) {
            const std::int64_t Expected = &Each == &Own ? Own.Another : Each.Default;
            EXPECT_EQ(Get(*View, Each.Name), Expected) << Each.Name;
            EXPECT_EQ(Each.Read(*View), Expected) << Each.Name;
        }
    }
}

TEST_F(TreePublished, InheritedPropertiesHaveTheirDefaultsAndInitialValues)
{
    struct TInheritedRow {
        const char* Name;
        std::optional<std::int64_t> Default;
        std::int64_t Initial;
    };
    const TInheritedRow Rows[] = {
        {"Tag", 0, 0},         {"Left", {}, 0},
        {"Top", {}, 0},        {"Width", {}, 121},
        {"Height", {}, 97},    {"Cursor", 0, 0},
        {"HelpContext", 0, 0}, {"Align", 0, 0},
        {"Enabled", 1, 1},     {"Color", -2147483643, -2147483643},
        {"ParentColor", 0, 0}, {"ParentCtl3D", 1, 1},
        {"Ctl3D", {}, 1},      {"TabOrder", -1, -1},
        {"TabStop", 1, 1},     {"Visible", 1, 1},
        {"ParentFont", 1, 1},  {"ParentShowHint", 1, 1},
        {"ShowHint", {}, 0},   {"Anchors", 3, 3}, // akLeft, akTop
    };
    const auto* const View = vcl::New<TKSTreeView>(Form);
    for (const TInheritedRow& Inherited : Rows) {
        SCOPED_TRACE(Inherited.Name);
        EXPECT_EQ(Row(Inherited.Name).Default, Inherited.Default);
        EXPECT_EQ(Get(*View, Inherited.Name), Inherited.Initial);
    }
}

TEST_F(TreePublished, ObjectsAndReferencesAreOfTheirClasses)
{
    const auto* const View = vcl::New<TKSTreeView>(Form);
    const auto Object = [&](const char* Name) { return std::get<vcl::TPersistent*>(Row(Name).Get(*View)); };
    for (const char* Name : {"Items", "Images", "Font", "Constraints", "PopupMenu"}) {
        EXPECT_EQ(Row(Name).Type->Kind, vcl::TTypeKind::Class) << Name;
        EXPECT_EQ(Row(Name).Default, std::nullopt) << Name;
    }
    EXPECT_EQ(Row("Items").Type->DisplayName(), "TKSTreeNodes");
    EXPECT_EQ(Row("Images").Type->DisplayName(), "TImageList");
    EXPECT_EQ(Row("Font").Type->DisplayName(), "TFont");
    EXPECT_EQ(Object("Items"), View->GetItems());
    EXPECT_EQ(Object("Images"), nullptr);
    EXPECT_EQ(Object("PopupMenu"), nullptr);
}

TEST_F(TreePublished, EventsHaveTheSignaturesHandlersAreWrittenFor)
{
    using vcl::TObject;
    const std::type_info& Told = typeid(void(TObject*, TKSTreeNode*));
    const std::type_info& Asked = typeid(void(TObject*, TKSTreeNode*, bool&));
    const std::type_info& Drawn = typeid(void(TObject*, TKSTreeNode*, vcl::TRect));
    const std::type_info& Edited = typeid(void(TObject*, TKSTreeNode*, vcl::AnsiString&));
    const std::pair<const char*, const std::type_info*> Events[] = {
        {"OnDrawNode", &Drawn}, {"OnGetImageIndex", &Told}, {"OnDeletion", &Told},  {"OnExpanding", &Asked},
        {"OnExpanded", &Told},  {"OnCollapsing", &Asked},   {"OnCollapsed", &Told}, {"OnChanging", &Asked},
        {"OnChange", &Told},    {"OnEditing", &Asked},      {"OnEdited", &Edited},
    };
    for (const auto& [Name, Signature] : Events) {
        EXPECT_EQ(Row(Name).Type->Kind, vcl::TTypeKind::Method) << Name;
        EXPECT_TRUE(*Row(Name).Type->Signature == *Signature) << Name;
    }
}

TEST_F(TreePublished, EveryEventIsReachedByItsName)
{
    auto* const View = vcl::New<TKSTreeView>(Form);
    const std::pair<const char*, vcl::TEventBase*> Events[] = {
        {"OnDrawNode", &View->OnDrawNode},   {"OnGetImageIndex", &View->OnGetImageIndex},
        {"OnDeletion", &View->OnDeletion},   {"OnExpanding", &View->OnExpanding},
        {"OnExpanded", &View->OnExpanded},   {"OnCollapsing", &View->OnCollapsing},
        {"OnCollapsed", &View->OnCollapsed}, {"OnChanging", &View->OnChanging},
        {"OnChange", &View->OnChange},       {"OnEditing", &View->OnEditing},
        {"OnEdited", &View->OnEdited},
    };
    for (const auto& [Name, Event] : Events)
        EXPECT_EQ(std::get<vcl::TEventBase*>(Row(Name).Get(*View)), Event) << Name;
}

TEST_F(TreePublished, EnumerationsHaveTheNamesAndOrdinalsOfForms)
{
    const auto Names = [](const char* Name) { return Row(Name).Type->ValueNames; };
    using testing::ElementsAre;
    using testing::StrEq;
    EXPECT_THAT(Names("NodeStyle"), ElementsAre(StrEq("nsSimple"), StrEq("nsShadowed")));
    EXPECT_THAT(Names("NodeImageSide"), ElementsAre(StrEq("nisLeft"), StrEq("nisRight")));
    EXPECT_THAT(Names("BorderStyle"), ElementsAre(StrEq("bsNone"), StrEq("bsSingle")));
    EXPECT_THAT(Names("LineStyle"),
                ElementsAre(StrEq("psSolid"), StrEq("psDash"), StrEq("psDot"), StrEq("psDashDot"),
                            StrEq("psDashDotDot"), StrEq("psClear"), StrEq("psInsideFrame")));
    EXPECT_EQ(static_cast<int>(TKSTVNodeStyle::nsSimple), 0);
    EXPECT_EQ(static_cast<int>(TKSTVNodeStyle::nsShadowed), 1);
    EXPECT_EQ(static_cast<int>(TKSTVNodeImageSide::nisLeft), 0);
    EXPECT_EQ(static_cast<int>(TKSTVNodeImageSide::nisRight), 1);
    EXPECT_EQ(static_cast<int>(vcl::TBorderStyle::bsNone), 0);
    EXPECT_EQ(static_cast<int>(vcl::TBorderStyle::bsSingle), 1);
    EXPECT_EQ(static_cast<int>(vcl::TPenStyle::psSolid), 0);
    EXPECT_EQ(static_cast<int>(vcl::TPenStyle::psDot), 2);
}

TEST_F(TreePublished, NodeStatesAndWaysToAddHaveTheirOrdinals)
{
    const TKSTNNodeState States[] = {TKSTNNodeState::nsCut,           TKSTNNodeState::nsDropHilited,
                                     TKSTNNodeState::nsFocused,       TKSTNNodeState::nsSelected,
                                     TKSTNNodeState::nsExpanded,      TKSTNNodeState::nsEdited,
                                     TKSTNNodeState::nsHiddenSelected};
    for (std::size_t Bit = 0; Bit < std::size(States); ++Bit)
        EXPECT_EQ(static_cast<std::size_t>(States[Bit]), Bit);
    EXPECT_EQ(static_cast<int>(TKSTNAddMode::taAddFirst), 0);
    EXPECT_EQ(static_cast<int>(TKSTNAddMode::taAdd), 1);
    EXPECT_EQ(static_cast<int>(TKSTNAddMode::taInsert), 2);
}

TEST_F(TreePublished, EveryPropertyIsSetReadStoredAndRefused)
{
    vcl::tests::CheckProperties(
        [] { return std::unique_ptr<vcl::TComponent>(vcl::New<TKSTreeView>(nullptr)); },
        {.NotFree = {"TabOrder", "Width", "Height", "ButtonSize"}, .NotStreamed = {}});
}

} // namespace
