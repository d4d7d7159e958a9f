#pragma once

#include "vcl/controls/CustomControl.h"
#include "vcl/controls/Menu.h"
#include "vcl/forms/FormTypes.h"

namespace vcl
{

/// A top-level window: it owns its components, keeps one active control, and moves the focus for Tab and
/// arrows.
///
///     TForm Form(nullptr);
///     LoadForm(Form, "main.dfm");
///     Form.Show();
///     Application().Run();
///
/// Its bounds stand in screen coordinates and include the frame; ClientWidth and ClientHeight do not. A
/// client size given before there is a window is kept and becomes the window's.
class TCustomForm : public TCustomControl, public IFormSite
{
    VCL_CLASS
public:
    explicit TCustomForm(TComponent* Owner);
    ~TCustomForm() override;

    // Properties that TForm publishes
    TWinControl* GetActiveControl() const override { return FActiveControl; }
    /// Raises EInvalidOperation for a control that is not on the form, or cannot have the focus.
    void SetActiveControl(TWinControl* Value);
    TBorderIcons GetBorderIcons() const { return FBorderIcons; }
    void SetBorderIcons(TBorderIcons Value);
    TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle Value);
    TFormStyle GetFormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle Value);
    bool GetKeyPreview() const override { return FKeyPreview; }
    void SetKeyPreview(bool Value) { FKeyPreview = Value; }
    TMainMenu* GetMenu() const { return FMenu; }
    void SetMenu(TMainMenu* Value);
    /// Kept for form files: OnCreate always comes when the form is complete.
    bool GetOldCreateOrder() const { return FOldCreateOrder; }
    void SetOldCreateOrder(bool Value) { FOldCreateOrder = Value; }
    /// Dots an inch the form was designed for; loading scales from them to 96. Values below 1 are ignored.
    int GetPixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int Value);
    /// Whether loading scales.
    bool GetScaled() const { return FScaled; }
    void SetScaled(bool Value) { FScaled = Value; }
    TPosition GetPosition() const { return FPosition; }
    void SetPosition(TPosition Value) { FPosition = Value; }
    TWindowState GetWindowState() const { return FWindowState; }
    void SetWindowState(TWindowState Value);

    TModalResult GetModalResult() const { return FModalResult; }
    /// Ends ShowModal when it is not 0.
    void SetModalResult(TModalResult Value) override;
    bool GetActive() const { return FActive; }
    bool IsModal() const { return FModal; }

    // Life
    void Show();
    /// Shows the form, blocks the program's other windows, and returns the result that closed it.
    TModalResult ShowModal();
    /// Asks OnCloseQuery, then does what OnClose says: hide, unless it says otherwise. The main form ends the
    /// program.
    void Close();
    /// Frees the form when everything under way has ended.
    void Release();
    virtual bool CloseQuery();

    // IFormSite
    TWinControl& SiteControl() override { return *this; }
    IFormSite* GetFormSite() override { return this; }
    void FocusControl(TWinControl* Control) override;
    void DefocusControl(TWinControl* Control, bool Removing) override;
    bool SetFocusedControl(TWinControl* Control) override;
    bool IsFormActive() const override { return FActive; }
    bool IsShortCut(std::uint16_t Key, TShiftState Shift) override;

    void SetFocus() override;
    void SetBounds(int Left, int Top, int Width, int Height) override;
    void SetClientSize(TSize Value) override;
    TRect GetClientRect() const override;
    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    TComponent* GetChildOwner() override { return nullptr; }
    void DefineProperties(TFiler& Filer) override;
    void AfterConstruction() override;
    void BeforeDestruction() override;
    void Dispatch(TMessage& Message) override;

    /// A form's size is stored as that of its client area.
    bool IsFormSizeStored() const { return GetParent() != nullptr; }
    bool IsClientSizeStored() const { return GetParent() == nullptr; }

    // Events
    TNotifyEvent OnActivate;
    TCloseEvent OnClose;
    TCloseQueryEvent OnCloseQuery;
    TNotifyEvent OnCreate;
    TNotifyEvent OnDeactivate;
    TNotifyEvent OnDestroy;
    TNotifyEvent OnHide;
    TNotifyEvent OnPaint;
    TNotifyEvent OnShow;

protected:
    virtual void Activate() { OnActivate(this); }
    virtual void Deactivate() { OnDeactivate(this); }
    virtual void DoCreate();
    virtual void DoDestroy();
    virtual void DoShow() { OnShow(this); }
    virtual void DoHide() { OnHide(this); }
    virtual void DoClose(TCloseAction& Action) { OnClose(this, Action); }

    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Paint() override { OnPaint(this); }
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    bool CanLiveWithoutParent() const override { return true; }
    void PlatformState(unsigned State) override;

    void CMDialogKey(TMessage& Message) override;
    void CMShowingChanged(TMessage& Message) override;
    void CMTextChanged(TMessage& Message) override;

private:
    void WMActivate(TMessage& Message);
    void WMCommand(TMessage& Message);
    void ShowMenu();
    void SetActive(bool Value);
    void SetWindowFocus();
    void Leave(TWinControl* Control, TAliveGuard& Guard);
    void Enter(TWinControl* Control, TAliveGuard& Guard);
    bool SelectNextByTab(bool Forward);
    void PlaceOnScreen();
    void ApplyDesignResolution();
    void CloseModal();
    std::uint32_t FrameStyle() const;

    TWinControl* FActiveControl = nullptr;
    TWinControl* FFocusedControl = nullptr;
    TMainMenu* FMenu = nullptr;
    TSize FWantedClientSize{-1, -1};
    int FPixelsPerInch = 96;
    int FTextHeight = 0;
    int FFocusCount = 0;
    TModalResult FModalResult = mrNone;
    TBorderIcons FBorderIcons{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize, TBorderIcon::biMaximize};
    TFormBorderStyle FBorderStyle = TFormBorderStyle::bsSizeable;
    TFormStyle FFormStyle = TFormStyle::fsNormal;
    TPosition FPosition = TPosition::poDesigned;
    TWindowState FWindowState = TWindowState::wsNormal;
    bool FActive = false;
    bool FCreated = false;
    bool FKeyPreview = false;
    bool FModal = false;
    bool FOldCreateOrder = false;
    bool FPlaced = false;
    bool FScaled = true;
};

/// The form Control stands on (Control itself when it is one), or null.
TCustomForm* GetParentForm(TControl* Control);

} // namespace vcl
