#pragma once

#include "vcl/controls/CustomControl.h"
#include "vcl/controls/Menu.h"
#include "vcl/forms/FormTypes.h"

namespace vcl
{

/// A top-level window: it owns its components, keeps one active control, and moves the focus for Tab and
/// arrows.
///
/// Its bounds stand in screen coordinates and include the frame; ClientWidth and ClientHeight do not.
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
    bool GetOldCreateOrder() const { return FOldCreateOrder; }
    void SetOldCreateOrder(bool Value) { FOldCreateOrder = Value; }
    /// The resolution the form was designed for; loading scales from it to 96. 0 while Scaled is false.
    int GetPixelsPerInch() const;
    void SetPixelsPerInch(int Value);
    /// Height of a digit in the form's font, as form files keep it.
    int GetTextHeight();
    void SetTextHeight(int Value) { FTextHeight = Value; }
    bool GetScaled() const { return FScaled; }
    void SetScaled(bool Value);
    TPosition GetPosition() const { return FPosition; }
    void SetPosition(TPosition Value);
    TWindowState GetWindowState() const { return FWindowState; }
    void SetWindowState(TWindowState Value);

    TModalResult GetModalResult() const { return FModalResult; }
    /// Ends ShowModal when it is not 0.
    void SetModalResult(TModalResult Value);
    bool GetActive() const { return FActive; }
    bool IsModal() const { return FModal; }

    // Life
    void Show();
    void Hide() { SetVisible(false); }
    /// Shows the form, blocks the program's other windows, and returns the result that closed it.
    TModalResult ShowModal();
    /// Asks OnCloseQuery, then does what OnClose says (hide, unless it says otherwise).
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
    void SetParent(TWinControl* Value) override;
    void SetClientSize(TSize Value) override;
    TRect GetClientRect() const override;
    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    void AfterConstruction() override;
    void BeforeDestruction() override;
    void WndProc(TMessage& Message) override;

    bool IsClientSizeStored() const { return !IsFormSizeStored(); }
    bool IsFormSizeStored() const;
    bool IsFormStored() const { return true; }
    bool IsPixelsPerInchStored() const { return FScaled; }

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
    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void DefineProperties(TFiler& Filer) override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void UpdateShowing() override;
    bool CanLiveWithoutParent() const override { return true; }

    void CMDialogKey(TMessage& Message) override;
    void CMShowingChanged(TMessage& Message) override;
    void CMFontChanged(TMessage& Message) override;
    void WMSetFocus(TMessage& Message) override;

private:
    void WMActivate(TMessage& Message);
    void WMCommand(TMessage& Message);
    void MenuChanged();
    void SetActive(bool Value);
    void SetWindowFocus();
    bool MoveFocus(std::uint16_t Key, TShiftState Shift);
    void PlaceOnScreen();
    void ApplyDesignResolution();
    void CloseModal();

    TWinControl* FActiveControl = nullptr;
    TWinControl* FFocusedControl = nullptr;
    TMainMenu* FMenu = nullptr;
    TSize FLoadedClientSize{-1, -1};
    int FPixelsPerInch = 96;
    int FTextHeight = 0;
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
