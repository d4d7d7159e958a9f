#include "SampleClasses.h"

#include <algorithm>

#include "SampleComponents.h"

namespace vcl::tests
{

#define SAMPLE_ROW(CLASS, NAME) Published<&CLASS::Get##NAME, &CLASS::Set##NAME>(#NAME)

const TClass& TSampleFont::StaticClass()
{
    static const TClass Class = DefineClass<TSampleFont, TPersistent>(
        "TSampleFont", {
                           SAMPLE_ROW(TSampleFont, Charset).Default(1),
                           SAMPLE_ROW(TSampleFont, Color).Default(SampleWindowText),
                           SAMPLE_ROW(TSampleFont, Height).Default(-11),
                           SAMPLE_ROW(TSampleFont, Name),
                           SAMPLE_ROW(TSampleFont, Size).NeverStored(),
                           SAMPLE_ROW(TSampleFont, Style).Default(TSampleFontStyles()),
                       });
    return Class;
}

void TSampleFont::Assign(const TPersistent* Source)
{
    const auto* const Other = As<TSampleFont>(Source);
    if (!Other)
        return TPersistent::Assign(Source);
    FCharset = Other->FCharset;
    FColor = Other->FColor;
    FHeight = Other->FHeight;
    FName = Other->FName;
    FStyle = Other->FStyle;
}

const TClass& TSampleMargins::StaticClass()
{
    static const TClass Class = DefineClass<TSampleMargins, TPersistent>(
        "TSampleMargins", {
                              SAMPLE_ROW(TSampleMargins, Left).Default(3),
                              SAMPLE_ROW(TSampleMargins, Top).Default(3),
                              SAMPLE_ROW(TSampleMargins, Right).Default(3),
                              SAMPLE_ROW(TSampleMargins, Bottom).Default(3),
                              Published<&TSampleMargins::GetFont>("Font"),
                          });
    return Class;
}

const TClass& TSampleControl::StaticClass()
{
    static const TClass Class = DefineClass<TSampleControl, TComponent>(
        "TSampleControl",
        {
            SAMPLE_ROW(TSampleControl, Left),
            SAMPLE_ROW(TSampleControl, Top),
            SAMPLE_ROW(TSampleControl, Width),
            SAMPLE_ROW(TSampleControl, Height),
            SAMPLE_ROW(TSampleControl, Align).Default(TSampleAlign::saNone),
            SAMPLE_ROW(TSampleControl, Anchors).Default(TSampleAnchors::FromBits(3)),
            SAMPLE_ROW(TSampleControl, Buddy),
            SAMPLE_ROW(TSampleControl, Caption),
            SAMPLE_ROW(TSampleControl, Color).Default(SampleBtnFace).Stored<&TSampleControl::IsColorStored>(),
            SAMPLE_ROW(TSampleControl, Cursor).Default(0),
            SAMPLE_ROW(TSampleControl, Enabled).Default(true),
            Published<&TSampleControl::GetFont>("Font").Stored<&TSampleControl::IsFontStored>(),
            SAMPLE_ROW(TSampleControl, Hint),
            Published<&TSampleControl::GetMargins>("Margins"),
            SAMPLE_ROW(TSampleControl, ParentColor).Default(true),
            SAMPLE_ROW(TSampleControl, ParentFont).Default(true),
            SAMPLE_ROW(TSampleControl, ShowHint).Default(false),
            SAMPLE_ROW(TSampleControl, TabOrder).Default(-1),
            SAMPLE_ROW(TSampleControl, TabStop).Default(false),
            SAMPLE_ROW(TSampleControl, Visible).Default(true),
            Published<&TSampleControl::OnChange>("OnChange"),
            Published<&TSampleControl::OnClick>("OnClick"),
            Published<&TSampleControl::OnKey>("OnKey"),
        });
    return Class;
}

TSampleControl::~TSampleControl()
{
    for (TSampleControl* Control : FControls)
        Control->FParent = nullptr;
    SetParentComponent(nullptr);
}

void TSampleControl::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent*)
{
    for (TSampleControl* Control : FControls)
        Receive(Control);
}

void TSampleControl::SetParentComponent(TComponent* Parent)
{
    if (FParent)
        std::erase(FParent->FControls, this);
    FParent = As<TSampleControl>(Parent);
    if (FParent)
        FParent->FControls.push_back(this);
}

void TSampleControl::SetChildOrder(TComponent* Child, int Order)
{
    const auto Found = std::find(FControls.begin(), FControls.end(), Child);
    if (Found == FControls.end())
        return;
    TSampleControl* const Control = *Found;
    FControls.erase(Found);
    const auto Place = std::clamp<std::ptrdiff_t>(Order, 0, static_cast<std::ptrdiff_t>(FControls.size()));
    FControls.insert(FControls.begin() + Place, Control);
}

void TSampleControl::Loaded()
{
    TComponent::Loaded();
    ++FLoadedCount;
}

void TSampleControl::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FBuddy)
        FBuddy = nullptr;
}

const TClass& TSamplePanel::StaticClass()
{
    static const TClass Class = DefineClass<TSamplePanel, TSampleControl>(
        "TSamplePanel", {
                            SAMPLE_ROW(TSamplePanel, Alignment).Default(TSampleAlignment::taCenter),
                            SAMPLE_ROW(TSamplePanel, BevelWidth).Default(1),
                        });
    return Class;
}

const TClass& TSampleMemo::StaticClass()
{
    static const TClass Class = DefineClass<TSampleMemo, TSampleControl>(
        "TSampleMemo", {
                           SAMPLE_ROW(TSampleMemo, Lines),
                           SAMPLE_ROW(TSampleMemo, WordWrap).Default(true),
                       });
    return Class;
}

const TClass& TSampleItem::StaticClass()
{
    static const TClass Class = DefineClass<TSampleItem, TCollectionItem>(
        "TSampleItem", {
                           SAMPLE_ROW(TSampleItem, Alignment).Default(TSampleAlignment::taLeft),
                           SAMPLE_ROW(TSampleItem, Caption),
                           SAMPLE_ROW(TSampleItem, Control),
                           Published<&TSampleItem::GetFont>("Font"),
                           Published<&TSampleItem::GetNotes>("Notes"),
                           SAMPLE_ROW(TSampleItem, Pos),
                           Published<&TSampleItem::GetSubItems>("SubItems"),
                           SAMPLE_ROW(TSampleItem, Visible).Default(true),
                           SAMPLE_ROW(TSampleItem, Width).Default(50),
                           Published<&TSampleItem::OnClick>("OnClick"),
                       });
    return Class;
}

TSampleItem::TSampleItem(TCollection* Collection)
    : TCollectionItem(Collection), FSubItems(std::make_unique<TSampleItems>(this))
{
}

TSampleItem::~TSampleItem() = default;

void TSampleItem::Assign(const TPersistent* Source)
{
    const auto* const Other = As<TSampleItem>(Source);
    if (!Other)
        return TCollectionItem::Assign(Source);
    FAlignment = Other->FAlignment;
    FCaption = Other->FCaption;
    FControl = Other->FControl;
    FPos = Other->FPos;
    FVisible = Other->FVisible;
    FWidth = Other->FWidth;
    FFont.Assign(&Other->FFont);
    FNotes.Assign(&Other->FNotes);
    FSubItems->Assign(Other->FSubItems.get());
    OnClick = Other->OnClick;
}

const TClass& TSampleItems::StaticClass()
{
    static const TClass Class = DefineClass<TSampleItems, TOwnedCollection>("TSampleItems");
    return Class;
}

const TClass& TSampleGrid::StaticClass()
{
    static const TClass Class = DefineClass<TSampleGrid, TSampleControl>(
        "TSampleGrid", {
                           Published<&TSampleGrid::GetColumns>("Columns"),
                           SAMPLE_ROW(TSampleGrid, Options).Default(TSampleOptions::FromBits(33)),
                       });
    return Class;
}

const TClass& TSampleFrame::StaticClass()
{
    static const TClass Class = DefineClass<TSampleFrame, TSampleControl>("TSampleFrame");
    return Class;
}

TSampleFrame::TSampleFrame(TComponent* Owner) : TSampleControl(Owner)
{
    const auto Place = [](TSampleControl* Control, TSampleControl* Parent, const char* Name, TRect Bounds) {
        Control->SetName(Name);
        Control->SetParentComponent(Parent);
        Control->SetLeft(Bounds.Left);
        Control->SetTop(Bounds.Top);
        Control->SetWidth(Bounds.Width());
        Control->SetHeight(Bounds.Height());
    };
    SetWidth(200);
    SetHeight(40);
    auto* const Label = New<TSampleControl>(this);
    Place(Label, this, "Label1", Bounds(4, 4, 60, 16));
    Label->SetCaption("Label1");
    auto* const Box = New<TSamplePanel>(this);
    Place(Box, this, "Box1", Bounds(70, 2, 120, 30));
    auto* const Edit = New<TSampleMemo>(this);
    Place(Edit, Box, "Edit1", Bounds(2, 2, 100, 24));
    Edit->GetLines()->Add("text");
}

const TClass& TSampleForm::StaticClass()
{
    static const TClass Class = DefineClass<TSampleForm, TSampleControl>(
        "TSampleForm", {},
        {
            PublishedMethod<&TSampleForm::FormCreate>("FormCreate"),
            PublishedMethod<&TSampleForm::ButtonClick>("ButtonClick"),
            PublishedMethod<&TSampleForm::OkClick>("OkClick"),
            PublishedMethod<&TSampleForm::EditChange>("EditChange"),
            PublishedMethod<&TSampleForm::EditKey>("EditKey"),
            PublishedMethod<&TSampleForm::TimerTick>("TimerTick"),
            PublishedMethod<&TSampleForm::ColumnClick>("ColumnClick"),
        });
    return Class;
}

void TSampleForm::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root)
{
    TSampleControl::GetChildren(Receive, Root);
    for (int Index = 0; Index < GetComponentCount(); ++Index)
        if (!GetComponent(Index)->HasParent())
            Receive(GetComponent(Index));
}

void TSampleForm::SetChildOrder(TComponent* Child, int Order)
{
    // Components without a parent stand behind the controls in the order they were made.
    if (Child->HasParent())
        TSampleControl::SetChildOrder(Child, Order);
}

void RegisterSampleClasses()
{
    RegisterClasses({&TSampleControl::StaticClass(), &TSamplePanel::StaticClass(),
                     &TSampleMemo::StaticClass(), &TSampleGrid::StaticClass(), &TSampleTypes::StaticClass(),
                     &TSampleMoney::StaticClass(), &TSampleWide::StaticClass(),
                     &TSampleDefaults::StaticClass(), &TSampleTimer::StaticClass(),
                     &TSampleData::StaticClass(), &TSampleFrame::StaticClass(), &TSampleForm::StaticClass()});
}

} // namespace vcl::tests
