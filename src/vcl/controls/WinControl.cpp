#include "vcl/controls/WinControl.h"

#include <algorithm>

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/ControlWindow.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WindowScrollBars.h"
#include "vcl/streaming/Reader.h"

namespace vcl
{

TWinControl::TWinControl(TComponent* Owner)
    : TControl(Owner), FPlatform(std::make_unique<TControlWindow>(*this)),
      FClient(std::make_unique<TClientSurface>(*this)), FBrush(std::make_unique<TBrush>()),
      FScrollBars(std::make_unique<TWindowScrollBars>())
{
    FBrush->SetColor(GetColor());
}

TWinControl::~TWinControl()
{
    // An object on the stack comes here without BeforeDestruction, still a child and with its handle.
    SetParent(nullptr);
    DestroyHandle();
    while (GetControlCount() > 0)
        delete GetControl(GetControlCount() - 1);
    FWindow.reset();
}

void TWinControl::BeforeDestruction()
{
    TControl::BeforeDestruction();
    DestroyHandle();
    if (FWindow)
        FWindow->SetVisible(false);
}

int TWinControl::GetControlCount() const
{
    return static_cast<int>(FControls.size() + FWinControls.size());
}

TControl* TWinControl::GetControl(int Index) const
{
    const std::size_t Place = static_cast<std::size_t>(Index);
    if (Index < 0 || Index >= GetControlCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    return Place < FControls.size() ? FControls[Place] : FWinControls[Place - FControls.size()];
}

TControl* TWinControl::FindChildControl(const AnsiString& Name) const
{
    for (int Index = 0; Index < GetControlCount(); ++Index)
        if (SameText(GetControl(Index)->GetName(), Name))
            return GetControl(Index);
    return nullptr;
}

bool TWinControl::ContainsControl(const TControl* Control) const
{
    while (Control && Control != this)
        Control = Control->GetParent();
    return Control != nullptr;
}

TControl* TWinControl::ControlAtPos(TPoint Point, bool AllowDisabled, bool AllowWinControls) const
{
    const auto IsHit = [&](TControl* Child) {
        if (!Child->GetVisible() || !Child->GetBoundsRect().Contains(Point))
            return false;
        if (!AllowDisabled && !Child->GetEnabled())
            return false;
        const std::int64_t Inside = MakePointParam(Point.X - Child->GetLeft(), Point.Y - Child->GetTop());
        return Child->Perform(CM_HITTEST, 0, Inside) != 0;
    };
    if (AllowWinControls)
        for (auto Child = FWinControls.rbegin(); Child != FWinControls.rend(); ++Child)
            if (IsHit(*Child))
                return *Child;
    for (auto Child = FControls.rbegin(); Child != FControls.rend(); ++Child)
        if (IsHit(*Child))
            return *Child;
    return nullptr;
}

void TWinControl::InsertControl(TControl* Control)
{
    for (const TControl* Above = this; Above; Above = Above->GetParent())
        if (Above == Control)
            throw EInvalidOperation("A control cannot be its own parent");
    TAliveGuard Guard(*Control);
    InsertChild(Control);
    if (Control->GetControlState().Contains(TControlStateFlag::csReadingState))
        return; // it asks its parent itself when it has been read
    Control->Perform(CM_PARENTCOLORCHANGED);
    Control->Perform(CM_PARENTFONTCHANGED);
    Control->Perform(CM_PARENTSHOWHINTCHANGED);
    Control->Perform(CM_PARENTBIDIMODECHANGED);
    if (TWinControl* const Window = As<TWinControl>(Control)) {
        Window->Perform(CM_PARENTCTL3DCHANGED);
        Window->UpdateControlState();
    } else if (FHandle)
        Control->Invalidate();
    if (Guard.IsAlive())
        AlignControls(Control);
}

void TWinControl::RemoveControl(TControl* Control)
{
    if (Control->FParent != this)
        return;
    if (TWinControl* const Window = As<TWinControl>(Control)) {
        Window->RemoveFocus(true);
        Window->DestroyHandle();
        if (Window->FWindow) {
            Window->FWindow->SetVisible(false);
            Window->FWindow->SetParent(nullptr);
        }
    } else if (FHandle)
        Control->InvalidateControl(Control->GetVisible(), false);
    RemoveChild(Control);
    Realign();
}

void TWinControl::InsertChild(TControl* Control)
{
    if (TWinControl* const Window = As<TWinControl>(Control)) {
        FWinControls.push_back(Window);
        FTabList.push_back(Window);
    } else
        FControls.push_back(Control);
    Control->FParent = this;
}

void TWinControl::RemoveChild(TControl* Control)
{
    std::erase(FControls, Control);
    std::erase(FWinControls, Control);
    std::erase(FTabList, Control);
    Control->FParent = nullptr;
}

void TWinControl::ReorderChild(TControl& Child, bool TopMost)
{
    const auto Move = [TopMost](auto& List, auto* Item) {
        const auto Found = std::find(List.begin(), List.end(), Item);
        if (Found == List.end())
            return;
        List.erase(Found);
        List.insert(TopMost ? List.end() : List.begin(), Item);
    };
    if (TWinControl* const Window = As<TWinControl>(&Child)) {
        Move(FWinControls, Window);
        return;
    }
    Move(FControls, &Child);
    Child.InvalidateControl(Child.GetVisible(), false);
}

void TWinControl::SetZOrder(bool TopMost)
{
    if (GetParent())
        GetParent()->ReorderChild(*this, TopMost);
    if (!FHandle)
        return;
    if (TopMost)
        FWindow->BringToFront();
    else
        FWindow->SendToBack();
}

void TWinControl::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root)
{
    for (int Index = 0; Index < GetControlCount(); ++Index)
        if (GetControl(Index)->GetOwner() == Root)
            Receive(GetControl(Index));
}

void TWinControl::SetChildOrder(TComponent* Child, int Order)
{
    const auto Place = [Order](auto& List, auto* Item, int Offset) {
        const auto Found = std::find(List.begin(), List.end(), Item);
        if (Found == List.end())
            return;
        List.erase(Found);
        const int Index = std::clamp(Order - Offset, 0, static_cast<int>(List.size()));
        List.insert(List.begin() + Index, Item);
    };
    if (TWinControl* const Window = As<TWinControl>(Child))
        Place(FWinControls, Window, static_cast<int>(FControls.size()));
    else if (TControl* const Control = As<TControl>(Child))
        Place(FControls, Control, 0);
}

std::int16_t TWinControl::GetTabOrder() const
{
    if (!GetParent())
        return -1;
    const auto& List = GetParent()->FTabList;
    return static_cast<std::int16_t>(std::find(List.begin(), List.end(), this) - List.begin());
}

void TWinControl::SetTabOrder(std::int16_t Value)
{
    // The siblings that make the number valid may not have been read yet.
    if (FControlState.Contains(TControlStateFlag::csReadingState))
        FTabOrder = Value;
    else
        UpdateTabOrder(Value);
}

void TWinControl::UpdateTabOrder(int Value)
{
    if (!GetParent() || Value < 0)
        return;
    auto& List = GetParent()->FTabList;
    std::erase(List, this);
    List.insert(List.begin() + std::min(Value, static_cast<int>(List.size())), this);
}

void TWinControl::FixupTabList()
{
    std::vector<TWinControl*> Read;
    for (TWinControl* Child : FTabList)
        if (Child->FTabOrder >= 0)
            Read.push_back(Child);
    std::stable_sort(Read.begin(), Read.end(), [](const TWinControl* Left, const TWinControl* Right) {
        return Left->FTabOrder < Right->FTabOrder;
    });
    for (TWinControl* Child : Read) {
        const int Order = Child->FTabOrder;
        Child->FTabOrder = -1;
        Child->UpdateTabOrder(Order);
    }
}

void TWinControl::SetTabStop(bool Value)
{
    if (Value == FTabStop)
        return;
    FTabStop = Value;
    Perform(CM_TABSTOPCHANGED);
}

void TWinControl::SetCtl3D(bool Value)
{
    if (Value == FCtl3D)
        return;
    FCtl3D = Value;
    FParentCtl3D = false;
    Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool Value)
{
    if (Value == FParentCtl3D)
        return;
    FParentCtl3D = Value;
    if (GetParent())
        Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::TakeCtl3DFromParent()
{
    if (!FParentCtl3D || !GetParent())
        return;
    SetCtl3D(GetParent()->GetCtl3D());
    FParentCtl3D = true;
}

void TWinControl::ReadState(TReader& Reader)
{
    DisableAlign();
    TControl::ReadState(Reader);
    FixupTabList();
    EnableAlign();
    if (!GetParent())
        return;
    Perform(CM_PARENTCTL3DCHANGED);
    UpdateControlState();
}

void TWinControl::Loaded()
{
    TControl::Loaded();
    if (FControlState.Contains(TControlStateFlag::csAlignmentNeeded))
        Realign();
    UpdateControlState();
}

IFormSite* GetFormSiteOf(TControl* Control)
{
    for (; Control; Control = Control->GetParent())
        if (TWinControl* const Window = As<TWinControl>(Control))
            if (IFormSite* const Site = Window->GetFormSite())
                return Site;
    return nullptr;
}

} // namespace vcl
