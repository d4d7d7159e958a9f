#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/platform/Menu.h"
#include "vcl/platform/Window.h"
#include "vcl/platform/record/RecordPeers.h"

namespace vcl::record
{

class TWindowSystem;

/// A window as a plain object: its size follows from borders and bars of the classic kind, its messages come
/// from the test, and what it shows goes into the log.
///
/// A sizeable form has a frame of 4 pixels at the left, right and bottom and 23 at the top; a menu bar takes
/// 19 more. A form's frame without WS_CAPTION is the border alone.
class TWindow final : public IWindow
{
public:
    TWindow(TWindowSystem& System, int Id, IWindowOwner& Owner, const TWindowStyle& Style, TWindow* Parent,
            const TRect& Bounds);
    ~TWindow() override;

    void Release() override;
    IWindowOwner* GetOwner() const override { return FOwner; }
    void SetStyle(const TWindowStyle& Style) override;
    void SetParent(IWindow* Parent) override;
    void SetBounds(const TRect& Bounds) override;
    TRect GetBounds() const override { return FBounds; }
    TSize GetClientSize() const override;
    TSize GetPreferredSize() const override;
    void SetVisible(bool Visible) override;
    void SetEnabled(bool Enabled) override { FEnabled = Enabled; }
    void BringToFront() override;
    void SendToBack() override;
    TPoint ClientToScreen(TPoint Point) const override;
    TPoint ScreenToClient(TPoint Point) const override;
    void SetText(const AnsiString& Text) override;
    AnsiString GetText() const override { return FText; }
    void SetFont(const TFontSpec& Font) override { FFont = Font; }
    void SetColors(TColor Text, TColor Background, bool UseNative) override;
    void SetCursor(TCursor Cursor) override { FCursor = Cursor; }
    void SetFocus() override;
    bool HasFocus() const override;
    void SetCapture(bool Capture) override;
    void SetScrollBar(TScrollBarKind Kind, const TScrollBarState& State) override;
    double GetScale() const override { return FScale; }
    void RequestUpdate() override { FUpdateRequested = true; }
    void Present(const TRect& Rect) override;
    void RenderTo(const TPixelBuffer& Target, TPoint Origin) override;
    void DefaultMessage(TMessage& Message) override;
    void SetMenu(const TMenuSpec* Menu) override;
    void SetWindowState(unsigned State) override { FWindowState = State; }
    void SetModal(bool Modal) override { FModal = Modal; }
    void Activate() override;
    TRect GetFrame() const override;

    IEditPeer* Edit() override { return FEdit.get(); }
    IButtonPeer* Button() override { return FButton.get(); }
    ILabelPeer* Label() override { return FLabel.get(); }
    ISpinPeer* Spin() override { return FSpin.get(); }
    IListPeer* List() override { return FList.get(); }
    IListViewPeer* ListView() override { return FListView.get(); }
    IStatusBarPeer* StatusBar() override { return FStatusBar.get(); }

    // What tests look at
    int GetId() const { return FId; }
    const TWindowStyle& GetStyle() const { return FStyle; }
    TWindow* GetParentWindow() const { return FParent; }
    const std::vector<TWindow*>& GetChildWindows() const { return FChildren; }
    bool IsVisible() const { return FVisible; }
    bool IsEnabled() const { return FEnabled; }
    bool IsModal() const { return FModal; }
    bool IsTopLevel() const { return !FParent || (FStyle.Style & WS_POPUP) != 0; }
    /// Visible with all its ancestors.
    bool IsOnScreen() const;
    const TFontSpec& GetFont() const { return FFont; }
    TColor GetTextColor() const { return FTextColor; }
    TColor GetBackground() const { return FBackground; }
    TCursor GetCursor() const { return FCursor; }
    unsigned GetWindowState() const { return FWindowState; }
    const TScrollBarState& GetScrollBar(TScrollBarKind Kind) const
    {
        return Kind == TScrollBarKind::sbHorizontal ? FHorizontal : FVertical;
    }
    bool HasMenu() const { return FHasMenu; }
    const TMenuSpec& GetMenu() const { return FMenu; }
    TEdit* GetEdit() { return FEdit.get(); }
    TButton* GetButton() { return FButton.get(); }
    TLabel* GetLabel() { return FLabel.get(); }
    TSpin* GetSpin() { return FSpin.get(); }
    TList* GetList() { return FList.get(); }
    TListView* GetListView() { return FListView.get(); }
    TStatusBar* GetStatusBar() { return FStatusBar.get(); }

    // What the platform does on its own account
    /// The user moves or resizes the window.
    void UserBounds(const TRect& Bounds);
    void UserClose();
    void UserState(unsigned State);
    /// The toolkit destroys the window, children first; the object is gone afterwards.
    void DestroyByPlatform();
    void ChangeScale(double Scale);
    /// Paints when it was asked for; false when nothing was.
    bool UpdateNow();

    // For peers and the system
    TWindowSystem& System() { return FSystem; }
    std::int64_t Send(unsigned Msg, std::uint64_t WParam = 0, std::int64_t LParam = 0);
    void Notice(TPeerNotice Notice, std::int64_t Index = 0);
    void SetOwnText(const AnsiString& Text) { FText = Text; }
    /// Distances of the client area from the window's edges: left, top, right, bottom.
    TRect Insets() const;

private:
    void MakePeers();
    void Unlink();
    void DefaultKey(const TMessage& Message);
    void DefaultMouse(const TMessage& Message);

    TWindowSystem& FSystem;
    IWindowOwner* FOwner;
    int FId;
    TWindowStyle FStyle;
    TWindow* FParent = nullptr;
    std::vector<TWindow*> FChildren; // back to front
    TRect FBounds;
    AnsiString FText;
    TFontSpec FFont;
    TColor FTextColor = clBlack;
    TColor FBackground = clWhite;
    TCursor FCursor = crDefault;
    TScrollBarState FHorizontal;
    TScrollBarState FVertical;
    TMenuSpec FMenu;
    double FScale = 1.0;
    unsigned FWindowState = 0;
    bool FVisible = false;
    bool FEnabled = true;
    bool FModal = false;
    bool FHasMenu = false;
    bool FUpdateRequested = false;

    std::unique_ptr<TEdit> FEdit;
    std::unique_ptr<TButton> FButton;
    std::unique_ptr<TLabel> FLabel;
    std::unique_ptr<TSpin> FSpin;
    std::unique_ptr<TList> FList;
    std::unique_ptr<TListView> FListView;
    std::unique_ptr<TStatusBar> FStatusBar;
};

} // namespace vcl::record
