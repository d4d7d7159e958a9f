#include "vcl/controls/Control.h"

#include <algorithm>

#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/Program.h"
#include "vcl/controls/WinControl.h"
#include "vcl/streaming/Reader.h"

namespace vcl
{

namespace
{

int Scaled(int Value, int M, int D)
{
    return RoundHalfEven(static_cast<double>(Value) * M / D);
}

} // namespace

TControl::TControl(TComponent* Owner)
    : TComponent(Owner), FFont(std::make_unique<TFont>()), FConstraints(std::make_unique<TSizeConstraints>())
{
    FFont->OnChange = [this](TObject*) { FontObjectChanged(); };
    FConstraints->OnChange = [this](TObject*) { ConstraintsChanged(); };
}

TControl::~TControl()
{
    MouseTracker().ControlDestroyed(this);
    Program().ControlDestroyed(this);
    if (FParent)
        FParent->RemoveControl(this);
}

void TControl::BeforeDestruction()
{
    // The last moment at which descendants are whole: nobody may find this control any more after it.
    TComponent::BeforeDestruction();
    MouseTracker().ControlDestroyed(this);
    Program().ControlDestroyed(this);
    SetParent(nullptr);
}

void TControl::SetLeft(int Value)
{
    SetBounds(Value, FTop, FWidth, FHeight);
}

void TControl::SetTop(int Value)
{
    SetBounds(FLeft, Value, FWidth, FHeight);
}

void TControl::SetWidth(int Value)
{
    SetBounds(FLeft, FTop, Value, FHeight);
}

void TControl::SetHeight(int Value)
{
    SetBounds(FLeft, FTop, FWidth, Value);
}

void TControl::SetBounds(int Left, int Top, int Width, int Height)
{
    TAliveGuard Guard(*this);
    if (!CheckNewSize(Width, Height) || !Guard.IsAlive())
        return;
    if (Left == FLeft && Top == FTop && Width == FWidth && Height == FHeight)
        return;
    InvalidateControl(FVisible, false);
    FLeft = Left;
    FTop = Top;
    FWidth = Width;
    FHeight = Height;
    UpdateAnchorRules();
    Invalidate();
    RequestAlign();
    if (Guard.IsAlive() && !Is(TComponentState::csLoading))
        Resize();
}

bool TControl::CheckNewSize(int& NewWidth, int& NewHeight)
{
    NewWidth = std::max(NewWidth, 0);
    NewHeight = std::max(NewHeight, 0);
    if (Is(TComponentState::csLoading))
        return true;
    TAliveGuard Guard(*this);
    if ((NewWidth != FWidth || NewHeight != FHeight) && !CanResize(NewWidth, NewHeight))
        return false;
    if (Guard.IsAlive())
        ApplyConstraints(NewWidth, NewHeight);
    return true;
}

bool TControl::CanResize(int& NewWidth, int& NewHeight)
{
    bool Allowed = true;
    OnCanResize(this, NewWidth, NewHeight, Allowed);
    return Allowed;
}

void TControl::ConstrainedResize(int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight)
{
    OnConstrainedResize(this, MinWidth, MinHeight, MaxWidth, MaxHeight);
}

void TControl::ApplyConstraints(int& NewWidth, int& NewHeight)
{
    int MinWidth = FConstraints->GetMinWidth();
    int MinHeight = FConstraints->GetMinHeight();
    int MaxWidth = FConstraints->GetMaxWidth();
    int MaxHeight = FConstraints->GetMaxHeight();
    ConstrainedResize(MinWidth, MinHeight, MaxWidth, MaxHeight);
    const auto Limit = [](int Value, int Min, int Max) {
        if (Max > 0 && Value > Max)
            return Max;
        return Min > 0 && Value < Min ? Min : Value;
    };
    NewWidth = Limit(NewWidth, MinWidth, MaxWidth);
    NewHeight = Limit(NewHeight, MinHeight, MaxHeight);
}

void TControl::ConstraintsChanged()
{
    if (!Is(TComponentState::csLoading))
        SetBounds(FLeft, FTop, FWidth, FHeight);
}

void TControl::SetClientSize(TSize Value)
{
    const TRect Client = GetClientRect();
    SetBounds(FLeft, FTop, FWidth - Client.Width() + Value.Width, FHeight - Client.Height() + Value.Height);
}

TPoint TControl::GetClientOrigin() const
{
    const TPoint Parent = FParent ? FParent->GetClientOrigin() : TPoint{};
    return {Parent.X + FLeft, Parent.Y + FTop};
}

TPoint TControl::ClientToScreen(TPoint Point) const
{
    const TPoint Origin = GetClientOrigin();
    return {Origin.X + Point.X, Origin.Y + Point.Y};
}

TPoint TControl::ScreenToClient(TPoint Point) const
{
    const TPoint Origin = GetClientOrigin();
    return {Point.X - Origin.X, Point.Y - Origin.Y};
}

TAnchors AnchorsOfAlign(TAlign Align)
{
    using enum TAnchorKind;
    switch (Align) {
    case TAlign::alTop:
        return {akLeft, akTop, akRight};
    case TAlign::alBottom:
        return {akLeft, akRight, akBottom};
    case TAlign::alLeft:
        return {akLeft, akTop, akBottom};
    case TAlign::alRight:
        return {akTop, akRight, akBottom};
    case TAlign::alClient:
        return {akLeft, akTop, akRight, akBottom};
    default:
        return {akLeft, akTop};
    }
}

void TControl::SetAlign(TAlign Value)
{
    if (Value == FAlign)
        return;
    const TAlign Old = FAlign;
    FAlign = Value;
    if (FAnchors == AnchorsOfAlign(Old))
        FAnchors = AnchorsOfAlign(Value);
    const auto IsRow = [](TAlign Align) { return Align == TAlign::alTop || Align == TAlign::alBottom; };
    const auto IsColumn = [](TAlign Align) { return Align == TAlign::alLeft || Align == TAlign::alRight; };
    // A bar that moves to another kind of side keeps its thickness.
    if (!Is(TComponentState::csLoading) &&
        ((IsRow(Old) && IsColumn(Value)) || (IsColumn(Old) && IsRow(Value))))
        SetBounds(FLeft, FTop, FHeight, FWidth);
    RequestAlign();
}

void TControl::SetAnchors(TAnchors Value)
{
    if (Value == FAnchors)
        return;
    FAnchors = Value;
    UpdateAnchorRules();
}

bool TControl::IsAnchorsStored() const
{
    return FAnchors != AnchorsOfAlign(FAlign);
}

void TControl::UpdateAnchorRules()
{
    if (FAnchorMove || Is(TComponentState::csLoading) || !FParent)
        return;
    const TRect Client = FParent->GetClientRect();
    FAnchorBounds = GetBoundsRect();
    FAnchorParentSize = {Client.Width(), Client.Height()};
}

void TControl::ParentResized(TSize NewClient, TRect& NewBounds) const
{
    struct TAxis {
        int Near, Far, Current, CurrentSize, OldParent, NewParent;
        bool KeepNear, KeepFar;

        void Place(int& Start, int& End) const
        {
            const int Delta = NewParent - OldParent;
            const int Size = KeepNear && KeepFar ? Far - Near + Delta : CurrentSize;
            if (KeepNear)
                Start = KeepFar ? Near : Current;
            else if (KeepFar)
                Start = Near + Delta;
            else if (OldParent != 0) // the middle keeps its share of the parent
                Start = Scaled((Near + Far) / 2, NewParent, OldParent) - Size / 2;
            else
                Start = Current;
            End = Start + std::max(Size, 0);
        }
    };
    const TAxis Horizontal{FAnchorBounds.Left,
                           FAnchorBounds.Right,
                           FLeft,
                           FWidth,
                           FAnchorParentSize.Width,
                           NewClient.Width,
                           FAnchors.Contains(TAnchorKind::akLeft),
                           FAnchors.Contains(TAnchorKind::akRight)};
    const TAxis Vertical{FAnchorBounds.Top,
                         FAnchorBounds.Bottom,
                         FTop,
                         FHeight,
                         FAnchorParentSize.Height,
                         NewClient.Height,
                         FAnchors.Contains(TAnchorKind::akTop),
                         FAnchors.Contains(TAnchorKind::akBottom)};
    Horizontal.Place(NewBounds.Left, NewBounds.Right);
    Vertical.Place(NewBounds.Top, NewBounds.Bottom);
}

void TControl::MoveWithContents(int DeltaX, int DeltaY)
{
    SetBounds(FLeft + DeltaX, FTop + DeltaY, FWidth, FHeight);
}

void TControl::RequestAlign()
{
    if (FParent)
        FParent->AlignControls(this);
}

void TControl::SetAutoSize(bool Value)
{
    if (Value == FAutoSize)
        return;
    FAutoSize = Value;
    AdjustSize();
}

void TControl::AdjustSize()
{
    if (!FAutoSize || Is(TComponentState::csLoading))
        return;
    int Width = FWidth;
    int Height = FHeight;
    if (CanAutoSize(Width, Height))
        SetBounds(FLeft, FTop, Width, Height);
}

void TControl::ChangeScale(int M, int D)
{
    if (M == D || D == 0)
        return;
    const int Left = Scaled(FLeft, M, D);
    const int Top = Scaled(FTop, M, D);
    // Edges scale, not sizes: neighbours that touch still do.
    const int Right = Scaled(FLeft + FWidth, M, D);
    const int Bottom = Scaled(FTop + FHeight, M, D);
    const bool FixedWidth = FControlStyle.Contains(TControlStyleFlag::csFixedWidth);
    const bool FixedHeight = FControlStyle.Contains(TControlStyleFlag::csFixedHeight);
    SetBounds(Left, Top, FixedWidth ? FWidth : Right - Left, FixedHeight ? FHeight : Bottom - Top);
    if (!FParentFont)
        FFont->SetHeight(Scaled(FFont->GetHeight(), M, D));
}

void TControl::SetParent(TWinControl* Value)
{
    if (Value == FParent)
        return;
    if (Value && static_cast<TControl*>(Value) == this)
        throw EInvalidOperation("A control cannot be its own parent");
    if (FParent)
        FParent->RemoveControl(this);
    if (Value) {
        Value->InsertControl(this);
        UpdateAnchorRules();
    }
}

TComponent* TControl::GetParentComponent() const
{
    return FParent;
}

void TControl::SetParentComponent(TComponent* Value)
{
    if (TWinControl* const Parent = As<TWinControl>(Value))
        SetParent(Parent);
}

void TControl::SetName(const AnsiString& Value)
{
    const TControl* const OwnerControl = As<TControl>(GetOwnerComponent());
    const bool FollowsName = FControlStyle.Contains(TControlStyleFlag::csSetCaption) &&
                             !Is(TComponentState::csLoading) && GetText() == GetName() &&
                             (!OwnerControl || !OwnerControl->Is(TComponentState::csLoading));
    TComponent::SetName(Value);
    if (FollowsName)
        SetText(Value);
}

void TControl::DefineProperties(TFiler& Filer)
{
    // Left and Top are published here: the design position of other components has no place.
    TPersistent::DefineProperties(Filer);
}

void TControl::ReadState(TReader& Reader)
{
    FControlState.Include(TControlStateFlag::csReadingState);
    if (TWinControl* const Parent = As<TWinControl>(Reader.GetParent()))
        SetParent(Parent);
    TComponent::ReadState(Reader);
    FControlState.Exclude(TControlStateFlag::csReadingState);
    if (!FParent)
        return;
    Perform(CM_PARENTCOLORCHANGED);
    Perform(CM_PARENTFONTCHANGED);
    Perform(CM_PARENTSHOWHINTCHANGED);
    Perform(CM_PARENTBIDIMODECHANGED);
}

void TControl::Loaded()
{
    TComponent::Loaded();
    UpdateAnchorRules();
    AdjustSize();
}

void TControl::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FPopupMenu)
        FPopupMenu = nullptr;
}

bool TControl::GetMouseCapture() const
{
    return MouseTracker().GetCapture() == this;
}

void TControl::SetMouseCapture(bool Value)
{
    if (Value != GetMouseCapture())
        MouseTracker().SetCapture(Value ? this : nullptr);
}

} // namespace vcl
