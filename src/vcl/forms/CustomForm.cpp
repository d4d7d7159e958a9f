#include "vcl/forms/CustomForm.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"
#include "vcl/platform/Platform.h"
#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl
{

const TClass& TCustomForm::StaticClass()
{
    static const TClass Class = DefineClass<TCustomForm, TCustomControl>("TCustomForm");
    return Class;
}

TCustomForm::TCustomForm(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle.Include(TControlStyleFlag::csAcceptsControls);
    SetVisible(false);
    SetParentColor(false);
    SetParentFont(false);
    SetColor(clBtnFace);
    FWidth = 320;
    FHeight = 240;
    Application().Attach();
    Screen().AddForm(this);
}

TCustomForm::~TCustomForm()
{
    Screen().RemoveForm(this);
    Application().FormDestroyed(this);
}

void TCustomForm::AfterConstruction()
{
    TCustomControl::AfterConstruction();
    if (!Is(TComponentState::csLoading))
        DoCreate();
}

void TCustomForm::BeforeDestruction()
{
    DoDestroy();
    Screen().RemoveForm(this);
    // A menu that outlives the form must not tell it of its changes.
    if (FMenu)
        FMenu->OnChanged.Reset();
    FMenu = nullptr;
    FActiveControl = nullptr;
    FFocusedControl = nullptr;
    TCustomControl::BeforeDestruction();
}

void TCustomForm::DoCreate()
{
    if (FCreated || !OnCreate)
        return;
    FCreated = true;
    RunGuarded(this, [this] { OnCreate(this); });
}

void TCustomForm::DoDestroy()
{
    RunGuarded(this, [this] { OnDestroy(this); });
}

void TCustomForm::Loaded()
{
    ApplyDesignResolution();
    TAliveGuard Guard(*this);
    TCustomControl::Loaded();
    // A form that is read once it exists gets its handlers only now.
    if (Guard.IsAlive())
        DoCreate();
}

void TCustomForm::ApplyDesignResolution()
{
    constexpr int UnitsPerInch = 96;
    if (FScaled && FPixelsPerInch != UnitsPerInch) {
        const TRect Client = GetClientRect();
        const auto Scale = [this](int Value) {
            return RoundHalfEven(static_cast<double>(Value) * UnitsPerInch / FPixelsPerInch);
        };
        GetFont()->SetHeight(Scale(GetFont()->GetHeight()));
        DisableAlign();
        ScaleControls(UnitsPerInch, FPixelsPerInch);
        SetClientSize({Scale(Client.Width()), Scale(Client.Height())});
        EnableAlign();
    }
    FPixelsPerInch = UnitsPerInch;
}

void TCustomForm::SetPixelsPerInch(int Value)
{
    if (Value >= 1)
        FPixelsPerInch = Value;
}

void TCustomForm::DefineProperties(TFiler& Filer)
{
    TCustomControl::DefineProperties(Filer);
    Filer.DefineProperty(
        "PixelsPerInch", [this](TReader& Reader) { SetPixelsPerInch(Reader.ReadInteger()); },
        [this](TWriter& Writer) { Writer.WriteInteger(FPixelsPerInch); }, !Filer.GetAncestor());
    Filer.DefineProperty(
        "TextHeight", [this](TReader& Reader) { FTextHeight = Reader.ReadInteger(); },
        [this](TWriter& Writer) {
            Writer.WriteInteger(FTextHeight > 0 ? FTextHeight : GetFont()->GetMetrics().Height);
        },
        !Filer.GetAncestor());
}

void TCustomForm::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root)
{
    TCustomControl::GetChildren(Receive, Root);
    if (Root != this)
        return;
    for (int Index = 0; Index < GetComponentCount(); ++Index)
        if (!GetComponent(Index)->HasParent())
            Receive(GetComponent(Index));
}

void TCustomForm::Notification(TComponent* Component, TOperation Operation)
{
    TCustomControl::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FMenu)
        SetMenu(nullptr);
}

void TCustomForm::SetBounds(int Left, int Top, int Width, int Height)
{
    if (!HandleAllocated() && (Width != FWidth || Height != FHeight))
        FWantedClientSize = {-1, -1};
    TCustomControl::SetBounds(Left, Top, Width, Height);
}

void TCustomForm::SetClientSize(TSize Value)
{
    if (HandleAllocated()) {
        TCustomControl::SetClientSize(Value);
        return;
    }
    // The frame is not known before the window is: until then the form is as large as its client area.
    SetBounds(FLeft, FTop, Value.Width, Value.Height);
    FWantedClientSize = {FWidth, FHeight};
}

TRect TCustomForm::GetClientRect() const
{
    if (!HandleAllocated() && FWantedClientSize.Width >= 0)
        return {0, 0, FWantedClientSize.Width, FWantedClientSize.Height};
    return TCustomControl::GetClientRect();
}

std::uint32_t TCustomForm::FrameStyle() const
{
    std::uint32_t Style = WS_POPUP;
    if (FBorderStyle != TFormBorderStyle::bsNone) {
        Style |= WS_CAPTION | WS_BORDER;
        if (FBorderIcons.Contains(TBorderIcon::biSystemMenu))
            Style |= WS_SYSMENU;
    }
    if (FBorderStyle == TFormBorderStyle::bsSizeable || FBorderStyle == TFormBorderStyle::bsSizeToolWin)
        Style |= WS_THICKFRAME;
    const bool HasIcons =
        FBorderStyle == TFormBorderStyle::bsSingle || FBorderStyle == TFormBorderStyle::bsSizeable;
    if (HasIcons && FBorderIcons.Contains(TBorderIcon::biMinimize))
        Style |= WS_MINIMIZEBOX;
    if (HasIcons && FBorderIcons.Contains(TBorderIcon::biMaximize))
        Style |= WS_MAXIMIZEBOX;
    return Style;
}

void TCustomForm::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    if (GetParent())
        return; // a form inside another control is a plain client area
    Params.Kind = TWindowKind::Form;
    Params.Style = (Params.Style & ~WS_CHILD) | FrameStyle();
    if (FBorderStyle == TFormBorderStyle::bsDialog)
        Params.ExStyle |= WS_EX_DLGMODALFRAME;
    if (FBorderStyle == TFormBorderStyle::bsToolWindow || FBorderStyle == TFormBorderStyle::bsSizeToolWin)
        Params.ExStyle |= WS_EX_TOOLWINDOW;
    if (FFormStyle == TFormStyle::fsStayOnTop)
        Params.ExStyle |= WS_EX_TOPMOST;
}

void TCustomForm::CreateWnd()
{
    const TSize Wanted = FWantedClientSize;
    TAliveGuard Guard(*this);
    TCustomControl::CreateWnd();
    if (!Guard.IsAlive() || !HandleAllocated())
        return;
    ShowMenu();
    if (Guard.IsAlive() && Wanted.Width >= 0) {
        FWantedClientSize = {-1, -1};
        TCustomControl::SetClientSize(Wanted);
    }
}

void TCustomForm::ShowMenu()
{
    if (!HandleAllocated() || GetParent())
        return;
    if (FMenu) {
        const TMenuSpec Spec = FMenu->BuildSpec();
        GetWindow()->SetMenu(&Spec);
    } else
        GetWindow()->SetMenu(nullptr);
    TellSize();
}

void TCustomForm::SetMenu(TMainMenu* Value)
{
    if (Value == FMenu)
        return;
    if (FMenu)
        FMenu->OnChanged.Reset();
    FMenu = Value;
    if (FMenu) {
        FreeNotification(FMenu);
        FMenu->OnChanged = [this](TObject*) { ShowMenu(); };
    }
    if (!Is(TComponentState::csDestroying))
        ShowMenu();
}

bool TCustomForm::IsShortCut(std::uint16_t Key, TShiftState Shift)
{
    return FMenu && FMenu->DispatchShortCut(Key, Shift);
}

void TCustomForm::SetBorderIcons(TBorderIcons Value)
{
    if (Value == FBorderIcons)
        return;
    FBorderIcons = Value;
    RecreateWnd();
}

void TCustomForm::SetBorderStyle(TFormBorderStyle Value)
{
    if (Value == FBorderStyle)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomForm::SetFormStyle(TFormStyle Value)
{
    if (Value == FFormStyle)
        return;
    FFormStyle = Value;
    RecreateWnd();
}

void TCustomForm::SetWindowState(TWindowState Value)
{
    if (Value == FWindowState)
        return;
    FWindowState = Value;
    if (HandleAllocated() && GetShowing())
        GetWindow()->SetWindowState(static_cast<unsigned>(Value));
}

void TCustomForm::PlatformState(unsigned State)
{
    if (State <= SIZE_MAXIMIZED)
        FWindowState = static_cast<TWindowState>(State);
}

TCustomForm* GetParentForm(TControl* Control)
{
    IFormSite* const Site = GetFormSiteOf(Control);
    return Site ? As<TCustomForm>(&Site->SiteControl()) : nullptr;
}

} // namespace vcl
